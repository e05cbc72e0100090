#pragma once

#include <QLineEdit>

class TableView;

// A field whose text filters the rows of a table. Up and Down go on to the table; Return opens its
// selected row, or the only one that is left; Escape empties the field; the window's keys for
// "Find" lead here while the field is shown.
class FilterField : public QLineEdit {
    Q_OBJECT
  public:
    explicit FilterField(QWidget *parent = nullptr);

    // The table must outlive the field's use.
    void setTable(TableView *table);

  protected:
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

  private:
    TableView *m_table = nullptr;
};
