// The virtual printer's frame parser and what stands behind it, on arbitrary bytes in two pieces.
// However the bytes are cut, the replies are the same.

#include <QJsonObject>

#include "virtualprinter/VirtualPrinter.h"

namespace {

QByteArray answers(const QByteArray &bytes, qsizetype cut) {
    VirtualPrinter printer(*profileFromJson(QJsonObject()).profile);
    const auto channel = printer.openChannel();
    QByteArray all;
    const QByteArray start = QByteArray::fromHex("1b7b045501567d");
    for (const QByteArray &piece : {start, bytes.left(cut), bytes.mid(cut)})
        for (const auto &reply : channel->receive(piece)) all += reply.bytes;
    return all;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size == 0) return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data + 1),
                           static_cast<qsizetype>(size - 1));
    if (answers(bytes, 0) != answers(bytes, data[0] % (bytes.size() + 1))) __builtin_trap();
    return 0;
}
