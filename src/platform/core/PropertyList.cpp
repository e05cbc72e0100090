#include "platform/core/PropertyList.h"

#include <plist/plist.h>

#include <QDir>
#include <QFile>
#include <QVariant>
#include <cstdlib>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

QString &administrator() {
    static QString current = PropertyList::administratorFolder;
    return current;
}

QVariant valueOf(plist_t node);

QVariantMap dictionaryOf(plist_t node) {
    QVariantMap map;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(node, &iterator);
    for (;;) {
        char *key = nullptr;
        plist_t child = nullptr;
        plist_dict_next_item(node, iterator, &key, &child);
        if (!child) break;
        map.insert(QString::fromUtf8(key), valueOf(child));
        std::free(key);
    }
    std::free(iterator);
    return map;
}

QVariant valueOf(plist_t node) {
    switch (plist_get_node_type(node)) {
        case PLIST_DICT:
            return dictionaryOf(node);
        case PLIST_ARRAY: {
            QVariantList list;
            for (uint32_t i = 0; i < plist_array_get_size(node); ++i)
                list.append(valueOf(plist_array_get_item(node, i)));
            return list;
        }
        case PLIST_STRING: {
            uint64_t length = 0;
            const char *text = plist_get_string_ptr(node, &length);
            return QString::fromUtf8(text, static_cast<qsizetype>(length));
        }
        case PLIST_BOOLEAN: {
            uint8_t flag = 0;
            plist_get_bool_val(node, &flag);
            return flag != 0;
        }
        case PLIST_UINT: {
            uint64_t number = 0;
            plist_get_uint_val(node, &number);
            return static_cast<qlonglong>(number);
        }
        default:
            return {};
    }
}

// The dictionary in a file; nothing when it cannot be used.
std::optional<QVariantMap> read(const QString &path) {
    const QFileInfo info(path);
    QFile file(path);
    if (!info.isFile() || info.size() > PropertyList::longestFile ||
        !file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.read(PropertyList::longestFile);
    plist_t root = nullptr;
    plist_from_memory(bytes.constData(), static_cast<uint32_t>(bytes.size()), &root);
    const std::unique_ptr<void, decltype(&plist_free)> owner(root, plist_free);
    if (!root || plist_get_node_type(root) != PLIST_DICT) return {};
    return dictionaryOf(root);
}

}  // namespace

QVariantMap PropertyList::dictionary(const QString &name, const QString &type) {
    QVariantMap list;
    for (const QString &folder : {u":/plists"_s, administrator()})
        list.insert(read(u"%1/%2.%3"_s.arg(folder, name, type)).value_or(QVariantMap()));
    return list;
}

QStringList PropertyList::unusable() {
    const QFileInfo folder(administrator());
    if (folder.exists() && !(folder.isReadable() && folder.isExecutable()))
        return {administrator()};
    QStringList files;
    for (const QFileInfo &file :
         QDir(administrator()).entryInfoList({u"*.plist"_s}, QDir::AllEntries | QDir::System))
        if (!read(file.filePath())) files << file.filePath();
    return files;
}

PropertyList::FolderOverride::FolderOverride(const QString &path) {
    administrator() = path;
}

PropertyList::FolderOverride::~FolderOverride() {
    administrator() = administratorFolder;
}
