#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

// What a printer says of itself, over USB or in its announcement on the network.

// A maker and a model.
struct Model {
    QString maker;
    QString name;
    bool operator==(const Model &) const = default;
};

// The maker and the model of an IEEE 1284 device id without its length bytes, as
// "MFG:Larkfield;MDL:L200;CMD:X;"; the long forms MANUFACTURER and MODEL count as well. Fields may
// stand in any order and be missing; the first of a name counts. Takes any bytes.
Model modelOfDeviceId(const QByteArray &id);

// What the printer is called: by its device id where that has a maker and a model, otherwise by the
// manufacturer and product strings of its USB descriptor.
Model modelOf(const QByteArray &deviceId, const QString &manufacturer, const QString &product);

// Maker and model as one name; a maker with which the model begins already is not doubled. It must
// equal a name of the table of models exactly.
QString productName(const Model &model);

// The texts of an announcement (DNS-SD TXT record) by their keys in small letters.
using AnnouncedTexts = QMap<QByteArray, QByteArray>;

// What an announced printer is called: by usb_MFG and usb_MDL where it has both, otherwise by "ty",
// otherwise by "product" without its brackets. Takes any bytes.
QString productName(const AnnouncedTexts &texts);
