#pragma once

#include <QString>
#include <QStringList>
#include <QVariantMap>

// Property lists: those that come with the application, and an administrator's before them.
namespace PropertyList {

// Where an administrator's lists are, under the same names.
inline const QString administratorFolder = QStringLiteral("/etc/network-setting-tool");
// Longest file that is read there, in bytes.
inline constexpr qint64 longestFile = qint64{1024} * 1024;

// Contents of the resource `name`.`type` (":/plists/OutlineData.plist" for "OutlineData" and
// "plist") as nested QVariantMap, QVariantList, QString, qlonglong and bool; a
// value of another kind is an invalid QVariant. Missing, unreadable, malformed, or not a
// dictionary: empty. What an administrator's list of that name has stands beside it, and before it
// under the same key.
QVariantMap dictionary(const QString &name, const QString &type);

// The administrator's lists that cannot be used: no regular file of at most longestFile bytes that
// can be read and holds a dictionary; or their folder, when it cannot be read.
QStringList unusable();

// While it lives, `folder` is where an administrator's lists are. One at a time; for tests, which
// bring lists of their own.
class FolderOverride {
  public:
    explicit FolderOverride(const QString &folder);
    ~FolderOverride();
    FolderOverride(const FolderOverride &) = delete;
    FolderOverride &operator=(const FolderOverride &) = delete;
};

}  // namespace PropertyList
