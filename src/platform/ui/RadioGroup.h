#pragma once

#include <QList>
#include <QRadioButton>
#include <QWidget>

// A group of the QRadioButtons inside it, each with an integer property "tag". Enabled as one.
class RadioGroup : public QWidget {
    Q_OBJECT
  public:
    using QWidget::QWidget;

    // The tag of the selected cell; -1 when none is selected.
    int selectedTag() const;

    // Selects the cell with the tag; an unknown tag selects none.
    void selectTag(int tag);

  Q_SIGNALS:
    // The user picked the cell with the tag, also the one that was selected before.
    void selected(int tag);

  protected:
    bool event(QEvent *event) override;

  private:
    QList<QRadioButton *> cells() const { return findChildren<QRadioButton *>(); }
    void cellClicked() { Q_EMIT selected(selectedTag()); }
};
