#pragma once

#include <QString>
#include <QVariantMap>

// Property lists that come with the application.
namespace PropertyList {

// Contents of the resource `name`.`type` (":/plists/OutlineData.plist" for "OutlineData" and
// "plist") as nested QVariantMap, QVariantList, QString, qlonglong and bool; a
// value of another kind is an invalid QVariant. Missing, unreadable, malformed, or not a
// dictionary: empty.
QVariantMap dictionary(const QString &name, const QString &type);

// While it lives, dictionary() reads from `folder` instead of the resources. One at a time; for
// tests, which bring lists of their own.
class FolderOverride {
  public:
    explicit FolderOverride(const QString &folder);
    ~FolderOverride();
    FolderOverride(const FolderOverride &) = delete;
    FolderOverride &operator=(const FolderOverride &) = delete;
};

}  // namespace PropertyList
