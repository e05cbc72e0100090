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

// Contents of the resource `name`.`type` (":/plists/OutlineData.plist") as QVariantMap,
// QVariantList, QString, qlonglong and bool. Empty when it is no readable dictionary. An
// administrator's list of that name takes precedence, key by key.
QVariantMap dictionary(const QString &name, const QString &type);

// The administrator's lists that are no readable dictionary of at most longestFile bytes; or their
// folder, when it cannot be read.
QStringList unusable();

// For tests: while it lives, `folder` has the administrator's lists. One at a time.
class FolderOverride {
  public:
    explicit FolderOverride(const QString &folder);
    ~FolderOverride();
    Q_DISABLE_COPY_MOVE(FolderOverride)
};

}  // namespace PropertyList
