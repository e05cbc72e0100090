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

// What a printer on USB is called: by its IEEE 1284 device id without the length bytes, as
// "MFG:Larkfield;MDL:L200;CMD:X;", where that has a maker and a model, otherwise by the
// manufacturer and product strings of its descriptor. MANUFACTURER and MODEL count as well, fields
// may stand in any order, the first of a name counts. Takes any bytes.
Model modelOf(const QByteArray &deviceId, const QString &manufacturer, const QString &product);

// Maker and model as one name; a maker with which the model begins already is not doubled. It must
// equal a name of the table of models exactly.
QString productName(const Model &model);

// The texts of an announcement (DNS-SD TXT record) by their keys in small letters.
using AnnouncedTexts = QMap<QByteArray, QByteArray>;

// What an announced printer is called: by usb_MFG and usb_MDL where it has both, otherwise by "ty",
// otherwise by "product" without its brackets. Takes any bytes.
QString productName(const AnnouncedTexts &texts);
