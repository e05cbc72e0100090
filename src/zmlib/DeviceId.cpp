#include "zmlib/DeviceId.h"

#include <QList>

Model modelOf(const QByteArray &deviceId, const QString &manufacturer, const QString &product) {
    Model model;
    for (const QByteArray &field : deviceId.split(';')) {
        const qsizetype colon = field.indexOf(':');
        const QByteArray key = field.left(colon).trimmed().toUpper();
        const QString value = QString::fromUtf8(field.mid(colon + 1)).simplified();
        if (colon < 0 || value.isEmpty()) continue;
        if (model.maker.isEmpty() && (key == "MFG" || key == "MANUFACTURER")) model.maker = value;
        if (model.name.isEmpty() && (key == "MDL" || key == "MODEL")) model.name = value;
    }
    if (!model.maker.isEmpty() && !model.name.isEmpty()) return model;
    return {manufacturer.simplified(), product.simplified()};
}

QString productName(const Model &model) {
    const QString both = (model.maker + u' ' + model.name).simplified();
    const bool doubled = (model.name + u' ').startsWith(model.maker + u' ', Qt::CaseInsensitive);
    return doubled ? model.name : both;
}

QString productName(const AnnouncedTexts &texts) {
    const auto text = [&](const char *key) {
        return QString::fromUtf8(texts.value(key)).simplified();
    };
    const Model model{text("usb_mfg"), text("usb_mdl")};
    if (!model.maker.isEmpty() && !model.name.isEmpty()) return productName(model);
    if (QString type = text("ty"); !type.isEmpty()) return type;
    const QString product = text("product");
    const bool inBrackets = product.startsWith(u'(') && product.endsWith(u')');
    return inBrackets ? product.mid(1, product.size() - 2).simplified() : product;
}
