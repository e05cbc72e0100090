#include "platform/ui/GatedSelectionModel.h"

#include <QScopedValueRollback>
#include <utility>

namespace {

QModelIndex firstCell(const QItemSelection &rows) {
    return QModelIndex(rows.first().topLeft()).siblingAtColumn(0);
}

}  // namespace

GatedSelectionModel::GatedSelectionModel(QAbstractItemModel *model, Question question,
                                         QObject *parent)
    : QItemSelectionModel(model, parent), m_question(std::move(question)) {}

GatedSelectionModel::UserAction::UserAction(GatedSelectionModel *selection)
    : m_selection(selection) {
    ++m_selection->m_userActions;
    m_selection->m_answer.reset();
}

GatedSelectionModel::UserAction::~UserAction() {
    --m_selection->m_userActions;
    m_selection->m_answer.reset();
}

QModelIndex GatedSelectionModel::selectedIndex() const {
    const QItemSelection rows = selection();
    return rows.isEmpty() ? QModelIndex() : firstCell(rows);
}

void GatedSelectionModel::moveFromCode(const QModelIndex &target) {
    const QScopedValueRollback<bool> open(m_open, true);
    if (target.isValid())
        setCurrentIndex(target, ClearAndSelect | Rows);
    else
        clear();
}

void GatedSelectionModel::select(const QItemSelection &selection, SelectionFlags command) {
    const bool changes = selection.isEmpty() ? command.testFlag(Clear) : command != NoUpdate;
    const bool empties = selection.isEmpty() || !(command & (Select | Toggle));
    const QModelIndex target = empties ? QModelIndex() : firstCell(selection);
    if (!changes || mayMoveTo(target)) QItemSelectionModel::select(selection, command);
}

void GatedSelectionModel::setCurrentIndex(const QModelIndex &index, SelectionFlags command) {
    // A view that gets the focus makes its first row current. Here current and selected are one.
    if (command == NoUpdate && m_userActions == 0 && !m_open) return;
    if (!mayMoveTo(index.siblingAtColumn(0))) return;
    const QScopedValueRollback<bool> open(m_open, true);
    QItemSelectionModel::setCurrentIndex(index, command);
}

bool GatedSelectionModel::mayMoveTo(const QModelIndex &target) {
    if (m_open || target == selectedIndex()) return true;
    if (m_answer && m_answer->target == target) return m_answer->allowed;
    const QPersistentModelIndex asked = target;
    const bool allowed = m_question(target);
    // The question may have had the rows replaced; then there is nothing left to move to.
    const bool stillThere = asked.isValid() == target.isValid();
    if (m_userActions > 0) m_answer = Answer{asked, allowed && stillThere};
    return allowed && stillThere;
}
