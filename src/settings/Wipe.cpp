#include "settings/Wipe.h"

#include <string.h>

namespace {

// The buffer itself, without the copy that a shared one would get.
template <typename Bytes>
void wipeBuffer(Bytes &secret) {
    explicit_bzero(const_cast<typename Bytes::value_type *>(secret.constData()),
                   static_cast<size_t>(secret.size()) * sizeof(typename Bytes::value_type));
    secret.clear();
}

}  // namespace

void wipe(QByteArray &secret) {
    wipeBuffer(secret);
}

void wipe(QString &secret) {
    wipeBuffer(secret);
}

QString ownCopy(const QString &text) {
    return QString(text.constData(), text.size());
}
