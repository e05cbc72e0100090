#pragma once

#include <QAbstractTableModel>
#include <QCollator>
#include <QHash>
#include <QIcon>
#include <QSortFilterProxyModel>
#include <QStringList>
#include <variant>

class TableDataSource;
class TableView;

// The data source of a table as a Qt model, in its order; asked when needed, icons made once.
class TableModel : public QAbstractTableModel {
  public:
    // The second line of a cell.
    static constexpr int DetailRole = Qt::UserRole;

    // Belongs to `table`, for which it asks.
    explicit TableModel(TableView *table);

    int rowCount(const QModelIndex &parent = {}) const override {
        return parent.isValid() ? 0 : m_rows;
    }
    int columnCount(const QModelIndex &parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_identifiers.size());
    }
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // Not owned; a null pointer: no rows, from the next reload() on.
    void setSource(TableDataSource *source) { m_source = source; }
    void addColumn(const QString &identifier);
    // Does nothing for an unknown column.
    void setTitle(const QString &identifier, const QString &title);
    // Asks for the number of rows, and forgets what is known of each.
    void reload();
    // Makes the icons anew, in the colours of now.
    void forgetIcons() { m_icons.clear(); }

    // What identifies a row.
    QString keyOf(int row) const;
    // The first row of that key; -1 when there is none, and for an empty key.
    int rowOf(const QString &key) const;
    // Whether a row comes before another one when they are sorted by a column.
    bool precedes(int row, int other, int column) const;
    // Whether the texts that the row shows contain every word, in upper or lower case.
    bool contains(int row, const QStringList &words) const;

  private:
    using Cell = std::pair<int, int>;  // row and column
    using SortKey = std::variant<int, QCollatorSortKey>;

    QIcon readable(QIcon icon) const;
    const SortKey &sortKeyOf(const Cell &cell) const;

    TableView *const m_table;
    TableDataSource *m_source = nullptr;
    QStringList m_identifiers;
    QStringList m_titles;
    int m_rows = 0;
    QCollator m_collator;
    mutable QHash<QString, QIcon> m_icons;  // by the file of the picture
    mutable QHash<Cell, SortKey> m_sortKeys;
};

// The rows that a table shows, in the order in which it shows them.
class ShownRows : public QSortFilterProxyModel {
  public:
    explicit ShownRows(TableModel *model);

    // Shows only the rows that contain all of these words, from the next reload of the model on.
    void setWords(const QStringList &words) { m_words = words; }

  protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

  private:
    const TableModel *const m_model;
    QStringList m_words;
};
