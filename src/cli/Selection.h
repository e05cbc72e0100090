#pragma once

#include <QRegularExpression>

#include "settings/SettingsFile.h"

// Which settings of a file count: by their names, by groups ("wired.address") and with "*" for one
// part of a name ("*.address"), parted by commas.
class Selection {
  public:
    // Those of `only`, or all when it is empty, except those of `without`.
    Selection(const QString &only, const QString &without);

    // A pattern that no setting has; empty when there is none.
    QString unknown() const;
    // What is left of given settings.
    GivenSettings of(GivenSettings given) const;

  private:
    bool has(const QString &name) const;

    QStringList m_patterns;
    QList<QRegularExpression> m_only, m_without;
};
