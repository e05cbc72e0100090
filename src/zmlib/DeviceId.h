#pragma once

#include <QByteArray>
#include <QString>

// What a printer on USB says of itself.

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
