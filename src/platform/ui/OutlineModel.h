#pragma once

#include <QAbstractItemModel>
#include <memory>

#include "platform/ui/OutlineView.h"

// The items of an outline's data source as Qt's views want them. The tree is read at once, on
// reload(); the cell texts are asked for when they are shown.
class OutlineModel : public QAbstractItemModel {
    Q_OBJECT
  public:
    explicit OutlineModel(OutlineView *view);
    ~OutlineModel() override;

    void setSource(OutlineDataSource *source) { m_source = source; }
    void addColumn(const QString &identifier);
    void reload();
    // The item at `index`; an empty map for an invalid index.
    QVariantMap item(const QModelIndex &index) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    bool hasChildren(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    struct Node;
    const Node *node(const QModelIndex &index) const;
    void readChildren(Node *parent);

    OutlineView *const m_view;
    OutlineDataSource *m_source = nullptr;
    QStringList m_columns;
    std::unique_ptr<Node> m_root;
};
