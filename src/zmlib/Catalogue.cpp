#include "zmlib/Catalogue.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QUrl>

#include "virtualprinter/Description.h"
#include "virtualprinter/Profile.h"
#include "virtualprinter/VirtualPrinter.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList entryKeys{PrinterKey::DeviceURI,   PrinterKey::ConnectionType,
                            PrinterKey::ProductName, PrinterKey::BonjourServiceName,
                            PrinterKey::Address,     PrinterKey::SerialNumber,
                            PrinterKey::Port};
const QString profileKey = u"profile"_s;

// The problem with the texts of an entry, or an empty text.
QString problemWithTexts(const QJsonObject &object) {
    for (const QString &key : object.keys()) {
        if (key == profileKey) continue;
        if (!entryKeys.contains(key)) return u"unknown key \"%1\""_s.arg(quotable(key));
        if (!object[key].isString()) return u"\"%1\" is not a text"_s.arg(key);
    }
    const QString connection = object[PrinterKey::ConnectionType].toString();
    if (connection != PrinterConnection::USB && connection != PrinterConnection::Network)
        return u"\"ConnectionType\" is neither \"USB\" nor \"Network\""_s;
    if (object[PrinterKey::ProductName].toString().isEmpty())
        return u"\"ProductName\" is missing"_s;
    if (connection == PrinterConnection::Network &&
        object[PrinterKey::BonjourServiceName].toString().isEmpty())
        return u"a network printer needs a \"BonjourServiceName\""_s;
    return {};
}

// Makes the virtual printer of an entry; answers the problem, or an empty text.
QString addVirtualPrinter(const QString &uri, const QJsonObject &object, Catalogue &catalogue) {
    const QJsonValue description = object[profileKey];
    if (!description.isUndefined() && !description.isObject())
        return u"\"profile\" is not an object"_s;
    ProfileResult result = profileFromJson(description.toObject());
    if (!result.profile) return u"profile: %1"_s.arg(result.error);
    catalogue.virtualPrinters.insert(uri,
                                     std::make_shared<VirtualPrinter>(std::move(*result.profile)));
    return {};
}

QString problemWithTcp(const QUrl &url, const QJsonObject &object) {
    if (url.host().isEmpty() || url.port() < 1) return u"\"DeviceURI\" lacks a host or a port"_s;
    if (object.contains(profileKey)) return u"\"profile\" belongs to virtual:// printers only"_s;
    return {};
}

// Adds one entry and its URI; answers the problem with it, or an empty text.
QString addEntry(const QJsonValue &value, Catalogue &catalogue, QSet<QString> &uris) {
    if (!value.isObject()) return u"not an object"_s;
    const QJsonObject object = value.toObject();
    const QString uri = object[PrinterKey::DeviceURI].toString();
    if (uri.isEmpty()) return u"\"DeviceURI\" is missing"_s;
    if (uris.contains(uri)) return u"\"%1\" is listed already"_s.arg(quotable(uri));
    QString problem = problemWithTexts(object);
    if (!problem.isEmpty()) return problem;

    const QUrl url(uri, QUrl::StrictMode);
    if (url.scheme() == u"virtual" && !url.host().isEmpty())
        problem = addVirtualPrinter(uri, object, catalogue);
    else if (url.scheme() == u"tcp")
        problem = problemWithTcp(url, object);
    else
        problem = u"\"%1\" is neither virtual://name nor tcp://host:port"_s.arg(quotable(uri));
    if (!problem.isEmpty()) return problem;

    PrinterEntry entry;
    for (const QString &key : entryKeys)
        if (object.contains(key)) entry.insert(key, object[key].toString());
    catalogue.add(entry);
    uris.insert(uri);
    return {};
}

}  // namespace

Catalogue catalogueFromJson(const QByteArray &json, const QString &source) {
    Catalogue catalogue;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        catalogue.problems << u"%1: not JSON at byte %2: %3"_s.arg(source)
                                  .arg(error.offset)
                                  .arg(error.errorString());
        return catalogue;
    }
    const QJsonValue printers = document.object()[u"printers"];
    if (!printers.isArray()) {
        catalogue.problems << u"%1: no array \"printers\""_s.arg(source);
        return catalogue;
    }
    const QJsonArray array = printers.toArray();
    QSet<QString> uris;
    for (qsizetype i = 0; i < array.size(); ++i)
        if (const QString problem = addEntry(array[i], catalogue, uris); !problem.isEmpty())
            catalogue.problems << u"%1: printers[%2]: %3"_s.arg(source).arg(i).arg(problem);
    return catalogue;
}

Catalogue catalogueFromEnvironment() {
    const QString name = qEnvironmentVariable("ZMLIB_PRINTERS");
    if (name.isEmpty()) return {};
    if (name == u"demo") {
        QFile file(u":/zmlib/demo.json"_s);
        file.open(QIODevice::ReadOnly);
        return catalogueFromJson(file.readAll(), name);
    }
    const DescriptionText text = readDescription(name);
    if (text.bytes) return catalogueFromJson(*text.bytes, name);
    Catalogue nothing;
    nothing.problems << u"%1: %2"_s.arg(name, text.error);
    return nothing;
}
