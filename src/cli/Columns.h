#pragma once

#include <QList>
#include <QStringList>

// Texts in the columns of a terminal, of which some characters take two.

// How many columns a text takes.
int widthOf(const QString &text);

// Rows of cells as lines: each column is wide enough for its cells, and at least as wide as
// `widths` says, which becomes what they are.
QStringList aligned(const QList<QStringList> &rows, QList<int> &widths);

// Parts that stay whole as far as they fit, with spaces between them, in lines of at most
// `longestLine` columns. The first line begins with `head`; the others are indented by its width.
inline constexpr int longestLine = 80;
QStringList wrapped(const QString &head, const QStringList &parts);

// Names, each with what is said of it beside it, in such lines.
QStringList explained(const QList<std::pair<QString, QString>> &rows);
