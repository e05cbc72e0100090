#pragma once

#include <QTreeWidget>

// Settings with their values side by side, grouped under headings. Read-only; Return and Escape go
// to its dialog.
class ChangeTable : public QTreeWidget {
    Q_OBJECT
  public:
    struct Row {
        QString group;  // the heading it stands under; rows of one group follow each other
        QStringList cells;
    };

    // Empty and hidden; belongs to `parent`.
    explicit ChangeTable(QWidget *parent = nullptr);

    // Shows rows under the titles of their columns; without rows the table is hidden. It is as high
    // as its rows, up to shownRows, beyond which it scrolls.
    void setRows(const QStringList &titles, const QList<Row> &rows);
    static constexpr int shownRows = 14;

    QSize sizeHint() const override;
    // The same, but narrower: long values are cut then.
    QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent *event) override;
    // Long values end in an ellipsis; their tips are whole.
    bool viewportEvent(QEvent *event) override;

  private:
    // What a column needs for its title and its cells.
    int wishOf(int column) const;
    // Gives every column what it needs; where that is too much, the widest ones share the rest.
    void fitColumns();
    int m_lines = 0;  // rows with their headings
};
