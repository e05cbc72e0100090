#include "platform/ui/OutlineModel.h"

#include <vector>

struct OutlineModel::Node {
    QVariantMap item;
    Node *parent = nullptr;  // null for the root
    int row = 0;             // among the parent's children
    bool expandable = true;
    std::vector<std::unique_ptr<Node>> children;
};

OutlineModel::OutlineModel(OutlineView *view) : m_view(view), m_root(std::make_unique<Node>()) {}

OutlineModel::~OutlineModel() = default;

void OutlineModel::addColumn(const QString &identifier) {
    const int count = columnCount();
    beginInsertColumns({}, count, count);
    m_columns.append(identifier);
    endInsertColumns();
}

void OutlineModel::reload() {
    beginResetModel();
    m_root = std::make_unique<Node>();
    if (m_source) readChildren(m_root.get());
    endResetModel();
}

void OutlineModel::readChildren(Node *parent) {
    const int count = m_source->numberOfChildren(m_view, parent->item);
    for (int i = 0; i < count; ++i) {
        auto child = std::make_unique<Node>();
        child->item = m_source->child(m_view, i, parent->item);
        child->parent = parent;
        child->row = i;
        child->expandable = m_source->isItemExpandable(m_view, child->item);
        if (child->expandable) readChildren(child.get());
        parent->children.push_back(std::move(child));
    }
}

const OutlineModel::Node *OutlineModel::node(const QModelIndex &index) const {
    return index.isValid() ? static_cast<const Node *>(index.constInternalPointer()) : m_root.get();
}

QVariantMap OutlineModel::item(const QModelIndex &index) const {
    return node(index)->item;
}

QModelIndex OutlineModel::index(int row, int column, const QModelIndex &parent) const {
    if (!hasIndex(row, column, parent)) return {};
    return createIndex(row, column, node(parent)->children[static_cast<size_t>(row)].get());
}

QModelIndex OutlineModel::parent(const QModelIndex &index) const {
    const Node *above = node(index)->parent;
    return above && above->parent ? createIndex(above->row, 0, above) : QModelIndex();
}

int OutlineModel::rowCount(const QModelIndex &parent) const {
    return parent.column() > 0 ? 0 : static_cast<int>(node(parent)->children.size());
}

int OutlineModel::columnCount(const QModelIndex &) const {
    return static_cast<int>(m_columns.size());
}

bool OutlineModel::hasChildren(const QModelIndex &parent) const {
    return parent.column() <= 0 && node(parent)->expandable;
}

QVariant OutlineModel::data(const QModelIndex &index, int role) const {
    if (role != Qt::DisplayRole || !m_source) return {};
    return m_source->objectValueForTableColumn(m_view, m_columns[index.column()], item(index));
}

QVariant OutlineModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return m_columns[section];
}
