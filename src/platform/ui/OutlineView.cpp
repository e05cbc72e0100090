#include "platform/ui/OutlineView.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include "platform/ui/GatedSelectionModel.h"
#include "platform/ui/OutlineModel.h"

OutlineView::OutlineView(QWidget *parent)
    : QTreeView(parent), m_model(std::make_unique<OutlineModel>(this)) {
    setModel(m_model.get());
    const std::unique_ptr<QItemSelectionModel> replaced(selectionModel());
    m_selection = new GatedSelectionModel(
        m_model.get(),
        [this](const QModelIndex &target) {
            return target.isValid() &&
                   (!m_delegate || m_delegate->shouldSelectItem(this, m_model->item(target)));
        },
        this);
    setSelectionModel(m_selection);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setHeaderHidden(true);
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex &index) {
        if (m_delegate && !m_delegate->shouldCollapseItem(this, m_model->item(index)))
            expand(index);
    });
}

OutlineView::~OutlineView() = default;

void OutlineView::setDataSource(OutlineDataSource *source) {
    m_model->setSource(source);
}

void OutlineView::setDelegate(OutlineDelegate *delegate) {
    m_delegate = delegate;
}

void OutlineView::addColumn(const QString &identifier) {
    m_model->addColumn(identifier);
    setHeaderHidden(m_model->columnCount() <= 1);
}

void OutlineView::reloadData() {
    m_model->reload();
}

QModelIndexList OutlineView::visibleRows() const {
    QModelIndexList rows;
    for (QModelIndex row = m_model->index(0, 0); row.isValid(); row = indexBelow(row))
        rows.append(row);
    return rows;
}

int OutlineView::numberOfRows() const {
    return static_cast<int>(visibleRows().size());
}

QVariantMap OutlineView::itemAtRow(int row) const {
    return m_model->item(visibleRows().value(row));
}

void OutlineView::expandRow(int row, bool withDescendants) {
    const QModelIndex index = visibleRows().value(row);
    if (!index.isValid()) return;
    if (withDescendants)
        expandRecursively(index);
    else
        expand(index);
}

void OutlineView::selectRow(int row) {
    const QModelIndex index = visibleRows().value(row);
    if (index.isValid()) m_selection->moveFromCode(index);
}

int OutlineView::selectedRow() const {
    const QModelIndex selected = m_selection->selectedIndex();
    return selected.isValid() ? static_cast<int>(visibleRows().indexOf(selected)) : -1;
}

void OutlineView::keyPressEvent(QKeyEvent *event) {
    const GatedSelectionModel::UserAction action(m_selection);
    QTreeView::keyPressEvent(event);
}

void OutlineView::mousePressEvent(QMouseEvent *event) {
    const GatedSelectionModel::UserAction action(m_selection);
    QTreeView::mousePressEvent(event);
}

void OutlineView::mouseMoveEvent(QMouseEvent *event) {
    // Dragging over the rows must not ask the delegate about each of them.
    if (event->buttons() == Qt::NoButton) QTreeView::mouseMoveEvent(event);
}

void OutlineView::mouseDoubleClickEvent(QMouseEvent *event) {
    const GatedSelectionModel::UserAction action(m_selection);
    QTreeView::mouseDoubleClickEvent(event);
}

QItemSelectionModel::SelectionFlags OutlineView::selectionCommand(const QModelIndex &index,
                                                                  const QEvent *) const {
    if (!index.isValid()) return QItemSelectionModel::NoUpdate;
    return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}
