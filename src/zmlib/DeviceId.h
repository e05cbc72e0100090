#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

// What a printer says of itself, over USB or in its announcement on the network.

// A maker and a model.
struct Model {
    QString maker;
    QString name;
};

// The product name of a USB printer: of its IEEE 1284 device id, "MFG:Larkfield;MDL:L200;" or with
// MANUFACTURER and MODEL, of which the first counts; otherwise of its USB strings. Takes any bytes.
Model modelOf(const QByteArray &deviceId, const QString &manufacturer, const QString &product);

// Maker and model as one name, as in the table of models; a doubled maker is left out.
QString productName(const Model &model);

// The texts of an announcement (DNS-SD TXT record) by their keys in small letters.
using AnnouncedTexts = QMap<QByteArray, QByteArray>;

// The product name of an announcement: usb_MFG and usb_MDL, "ty", or "product". Takes any bytes.
QString productName(const AnnouncedTexts &texts);
