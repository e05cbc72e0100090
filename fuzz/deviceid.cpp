// The name of a product from an IEEE 1284 device id and the strings of a USB descriptor, on
// arbitrary bytes: the first byte says how long the id is, of what is left; the strings share the
// rest.

#include "zmlib/DeviceId.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size == 0) return 0;
    const QByteArray all(reinterpret_cast<const char *>(data) + 1,
                         static_cast<qsizetype>(size - 1));
    const QByteArray id = all.left(all.size() * data[0] / 255);
    const QString rest = QString::fromUtf8(all.mid(id.size()));
    const Model model = modelOf(id, rest.section(u'|', 0, 0), rest.section(u'|', 1));
    const QString name = productName(model);
    if (name != name.simplified()) __builtin_trap();
    if (!name.endsWith(model.name)) __builtin_trap();
    if (name.isEmpty() != (model.maker.isEmpty() && model.name.isEmpty())) __builtin_trap();
    return 0;
}
