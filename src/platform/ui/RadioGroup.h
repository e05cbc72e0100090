#pragma once

#include <QButtonGroup>
#include <QWidget>

// A group of radio buttons ("cells") of which at most one is selected. Every QRadioButton below
// this widget is a cell, whenever it is added; its integer dynamic property "tag" names it.
class RadioGroup : public QWidget {
    Q_OBJECT
  public:
    explicit RadioGroup(QWidget *parent = nullptr);

    // Tag of the selected cell; -1 when none is selected or it has no tag.
    int selectedTag() const;

    // Selects the cell of `tag`. An unknown tag deselects all and gives false. Does not raise
    // selected().
    bool selectTag(int tag);

  Q_SIGNALS:
    // The user picked the cell of `tag` by mouse or keyboard, also when it was selected already.
    void selected(int tag);

  protected:
    bool event(QEvent *event) override;

  private:
    void adoptCells();
    void deselectAll();

    QButtonGroup m_cells;
};
