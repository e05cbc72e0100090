#pragma once

#include <QLineEdit>

class TableView;

// A field whose text filters a table. Up and Down go to the table, Return opens its selected or
// only row, Escape empties the field, "Find" leads here.
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
