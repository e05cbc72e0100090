#include "zmlib/Catalogue.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "virtualprinter/Description.h"
#include "virtualprinter/Profile.h"
#include "virtualprinter/VirtualPrinter.h"

namespace {

const QStringList entryKeys{PrinterKey::DeviceURI,   PrinterKey::ConnectionType,
                            PrinterKey::ProductName, PrinterKey::BonjourServiceName,
                            PrinterKey::Address,     PrinterKey::SerialNumber,
                            PrinterKey::Port};
const QString profileKey = QStringLiteral("profile");

// The problem with the texts of an entry, or an empty text.
QString problemWithTexts(const QJsonObject &object) {
    for (const QString &key : object.keys()) {
        if (key == profileKey) continue;
        if (!entryKeys.contains(key))
            return QStringLiteral("unknown key \"%1\"").arg(quotable(key));
        if (!object[key].isString()) return QStringLiteral("\"%1\" is not a text").arg(key);
    }
    const QString connection = object[PrinterKey::ConnectionType].toString();
    if (connection != PrinterConnection::USB && connection != PrinterConnection::Network)
        return QStringLiteral("\"ConnectionType\" is neither \"USB\" nor \"Network\"");
    if (object[PrinterKey::ProductName].toString().isEmpty())
        return QStringLiteral("\"ProductName\" is missing");
    if (connection == PrinterConnection::Network &&
        object[PrinterKey::BonjourServiceName].toString().isEmpty())
        return QStringLiteral("a network printer needs a \"BonjourServiceName\"");
    return {};
}

// Makes the virtual printer of an entry; answers the problem, or an empty text.
QString addVirtualPrinter(const QString &uri, const QJsonObject &object, Catalogue &catalogue) {
    const QJsonValue description = object[profileKey];
    if (!description.isUndefined() && !description.isObject())
        return QStringLiteral("\"profile\" is not an object");
    ProfileResult result = profileFromJson(description.toObject());
    if (!result.profile) return QStringLiteral("profile: %1").arg(result.error);
    catalogue.virtualPrinters.insert(uri,
                                     std::make_shared<VirtualPrinter>(std::move(*result.profile)));
    return {};
}

QString problemWithTcp(const QUrl &url, const QJsonObject &object) {
    if (url.host().isEmpty() || url.port() < 1)
        return QStringLiteral("\"DeviceURI\" lacks a host or a port");
    if (object.contains(profileKey))
        return QStringLiteral("\"profile\" belongs to virtual:// printers only");
    return {};
}

// Adds one entry; answers the problem with it, or an empty text.
QString addEntry(const QJsonValue &value, Catalogue &catalogue) {
    if (!value.isObject()) return QStringLiteral("not an object");
    const QJsonObject object = value.toObject();
    const QString uri = object[PrinterKey::DeviceURI].toString();
    if (uri.isEmpty()) return QStringLiteral("\"DeviceURI\" is missing");
    if (catalogue.lists(uri)) return QStringLiteral("\"%1\" is listed already").arg(quotable(uri));
    QString problem = problemWithTexts(object);
    if (!problem.isEmpty()) return problem;

    const QUrl url(uri, QUrl::StrictMode);
    if (url.scheme() == u"virtual" && !url.host().isEmpty())
        problem = addVirtualPrinter(uri, object, catalogue);
    else if (url.scheme() == u"tcp")
        problem = problemWithTcp(url, object);
    else
        problem = QStringLiteral("\"%1\" is neither virtual://name nor tcp://host:port")
                      .arg(quotable(uri));
    if (!problem.isEmpty()) return problem;

    PrinterEntry entry;
    for (const QString &key : entryKeys)
        if (object.contains(key)) entry.insert(key, object[key].toString());
    catalogue.add(entry);
    return {};
}

}  // namespace

void Catalogue::add(const PrinterEntry &entry) {
    entries.append(entry);
    m_uris.insert(entry[PrinterKey::DeviceURI]);
}

Catalogue catalogueFromJson(const QByteArray &json, const QString &source) {
    Catalogue catalogue;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        catalogue.problems << QStringLiteral("%1: not JSON at byte %2: %3")
                                  .arg(source)
                                  .arg(error.offset)
                                  .arg(error.errorString());
        return catalogue;
    }
    const QJsonValue printers = document.object()[u"printers"];
    if (!printers.isArray()) {
        catalogue.problems << QStringLiteral("%1: no array \"printers\"").arg(source);
        return catalogue;
    }
    const QJsonArray array = printers.toArray();
    for (qsizetype i = 0; i < array.size(); ++i)
        if (const QString problem = addEntry(array[i], catalogue); !problem.isEmpty())
            catalogue.problems
                << QStringLiteral("%1: printers[%2]: %3").arg(source).arg(i).arg(problem);
    return catalogue;
}

Catalogue catalogueFromEnvironment() {
    const QString name = qEnvironmentVariable("ZMLIB_PRINTERS");
    if (name.isEmpty()) return {};
    if (name == u"demo") {
        QFile file(QStringLiteral(":/zmlib/demo.json"));
        file.open(QIODevice::ReadOnly);
        return catalogueFromJson(file.readAll(), name);
    }
    const DescriptionText text = readDescription(name);
    if (text.bytes) return catalogueFromJson(*text.bytes, name);
    Catalogue nothing;
    nothing.problems << QStringLiteral("%1: %2").arg(name, text.error);
    return nothing;
}
