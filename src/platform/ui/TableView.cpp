#include "platform/ui/TableView.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QToolTip>

#include "platform/ui/GatedSelectionModel.h"

class TableView::Model : public QAbstractTableModel {
  public:
    struct Column {
        QString identifier;
        QString title;
    };

    explicit Model(TableView *view) : m_view(view) {}

    int rowCount(const QModelIndex &parent = {}) const override {
        return parent.isValid() ? 0 : m_rows;
    }

    int columnCount(const QModelIndex &parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
    }

    QVariant data(const QModelIndex &index, int role) const override {
        if (role != Qt::DisplayRole || !m_source) return {};
        return m_source->objectValueForTableColumn(m_view, m_columns[index.column()].identifier,
                                                   index.row());
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation != Qt::Horizontal) return {};
        if (role == Qt::TextAlignmentRole) return int(Qt::AlignLeft | Qt::AlignVCenter);
        return role == Qt::DisplayRole ? m_columns[section].title : QVariant();
    }

    void addColumn(const QString &identifier) {
        const int count = columnCount();
        beginInsertColumns({}, count, count);
        m_columns.append({identifier, identifier});
        endInsertColumns();
    }

    void setTitle(const QString &identifier, const QString &title) {
        for (int i = 0; i < m_columns.size(); ++i) {
            if (m_columns[i].identifier != identifier) continue;
            m_columns[i].title = title;
            Q_EMIT headerDataChanged(Qt::Horizontal, i, i);
        }
    }

    void reload() {
        beginResetModel();
        m_rows = m_source ? qMax(0, m_source->numberOfRowsInTableView(m_view)) : 0;
        endResetModel();
    }

    const QList<Column> &columns() const { return m_columns; }
    void setSource(TableDataSource *source) { m_source = source; }

  private:
    TableView *const m_view;
    TableDataSource *m_source = nullptr;
    QList<Column> m_columns;
    int m_rows = 0;  // at the last reload
};

TableView::TableView(QWidget *parent) : QTableView(parent), m_model(std::make_unique<Model>(this)) {
    setModel(m_model.get());
    const std::unique_ptr<QItemSelectionModel> replaced(selectionModel());
    m_selection = new GatedSelectionModel(
        m_model.get(),
        [this](const QModelIndex &) {
            return !m_delegate || m_delegate->selectionShouldChangeInTableView(this);
        },
        this);
    setSelectionModel(m_selection);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setShowGrid(false);
    setCornerButtonEnabled(false);
    verticalHeader()->hide();
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    connect(horizontalHeader(), &QHeaderView::sectionDoubleClicked, this,
            [this] { Q_EMIT doubleAction(-1); });
}

TableView::~TableView() = default;

void TableView::setDataSource(TableDataSource *source) {
    m_model->setSource(source);
}

void TableView::setDelegate(TableDelegate *delegate) {
    m_delegate = delegate;
}

void TableView::addColumn(const QString &identifier) {
    m_model->addColumn(identifier);
}

void TableView::setHeaderTitle(const QString &identifier, const QString &title) {
    m_model->setTitle(identifier, title);
}

QStringList TableView::columnIdentifiers() const {
    QStringList identifiers;
    for (const Model::Column &column : m_model->columns()) identifiers.append(column.identifier);
    return identifiers;
}

void TableView::reloadData() {
    const int row = selectedRow();
    {
        const QScopedValueRollback<bool> reloading(m_reloading, true);
        m_model->reload();
        if (row >= 0) selectRow(row);
    }
    if (row >= 0 && selectedRow() < 0 && m_delegate) m_delegate->tableViewSelectionDidChange(this);
}

int TableView::selectedRow() const {
    return m_selection->selectedIndex().row();
}

void TableView::selectRow(int row) {
    m_selection->moveFromCode(m_model->hasIndex(row, 0) ? m_model->index(row, 0) : QModelIndex());
}

void TableView::deselectAll() {
    selectRow(-1);
}

void TableView::keyPressEvent(QKeyEvent *event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && selectedRow() >= 0) {
        event->accept();
        Q_EMIT doubleAction(selectedRow());
        return;
    }
    const GatedSelectionModel::UserAction action(m_selection);
    QTableView::keyPressEvent(event);
}

void TableView::mousePressEvent(QMouseEvent *event) {
    const GatedSelectionModel::UserAction action(m_selection);
    QTableView::mousePressEvent(event);
}

void TableView::mouseMoveEvent(QMouseEvent *event) {
    // Dragging over the rows must not ask the delegate about each of them.
    if (event->buttons() == Qt::NoButton) QTableView::mouseMoveEvent(event);
}

void TableView::mouseDoubleClickEvent(QMouseEvent *event) {
    const int row = indexAt(event->position().toPoint()).row();
    const bool isLeft = event->button() == Qt::LeftButton;
    {
        const GatedSelectionModel::UserAction action(m_selection);
        QTableView::mouseDoubleClickEvent(event);
    }
    if (isLeft) Q_EMIT doubleAction(row);
}

bool TableView::viewportEvent(QEvent *event) {
    if (event->type() != QEvent::ToolTip) return QTableView::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    showToolTip(help->pos(), help->globalPos());
    return true;
}

void TableView::showToolTip(const QPoint &position, const QPoint &globalPosition) {
    const QModelIndex index = indexAt(position);
    const bool isCutOff =
        index.isValid() && sizeHintForIndex(index).width() > visualRect(index).width();
    // Marked as rich text and escaped, so that a name that looks like markup is not taken for it.
    const QString text =
        isCutOff ? u"<qt>%1</qt>"_qs.arg(index.data().toString().toHtmlEscaped()) : QString();
    QToolTip::showText(globalPosition, text, viewport(), visualRect(index));
}

void TableView::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) {
    QTableView::selectionChanged(selected, deselected);
    if (!m_reloading && m_delegate) m_delegate->tableViewSelectionDidChange(this);
}
