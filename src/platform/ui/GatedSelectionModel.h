#pragma once

#include <QItemSelectionModel>
#include <functional>
#include <optional>

// The selection of a view with at most one selected row, which asks before the user moves it. When
// the answer is no, neither the selection nor the current index moves.
class GatedSelectionModel : public QItemSelectionModel {
    Q_OBJECT
  public:
    // `target` is the row's index in column 0, or invalid when the selection is to be emptied.
    using Question = std::function<bool(const QModelIndex &target)>;

    GatedSelectionModel(QAbstractItemModel *model, Question question, QObject *parent);

    // To be held while a view handles one mouse or key event: a view moves selection and current
    // index in several steps, and the question is asked once for them all.
    class UserAction {
      public:
        explicit UserAction(GatedSelectionModel *selection);
        ~UserAction();
        UserAction(const UserAction &) = delete;
        UserAction &operator=(const UserAction &) = delete;

      private:
        GatedSelectionModel *m_selection;
    };

    // The selected row's index in column 0; invalid when none is selected.
    QModelIndex selectedIndex() const;
    // Selects the row of `target`, or none when it is invalid, without asking.
    void moveFromCode(const QModelIndex &target);

    using QItemSelectionModel::select;
    void select(const QItemSelection &selection, SelectionFlags command) override;
    void setCurrentIndex(const QModelIndex &index, SelectionFlags command) override;

  private:
    bool mayMoveTo(const QModelIndex &target);

    struct Answer {
        QPersistentModelIndex target;
        bool allowed;
    };
    const Question m_question;
    std::optional<Answer> m_answer;  // of the user action being handled
    int m_userActions = 0;           // being handled, nested when the question runs an event loop
    bool m_open = false;             // moves go through unasked
};
