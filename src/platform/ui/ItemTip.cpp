#include "platform/ui/ItemTip.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

bool showItemTip(QAbstractItemView *view, QEvent *event,
                 const std::function<QString(const QModelIndex &)> &wholeText) {
    if (event->type() != QEvent::ToolTip) return false;
    const auto *help = static_cast<QHelpEvent *>(event);
    const QModelIndex index = view->indexAt(help->pos());
    const bool isCut =
        index.isValid() && view->sizeHintForIndex(index).width() > view->visualRect(index).width();
    QToolTip::showText(help->globalPos(),
                       isCut ? Qt::convertFromPlainText(wholeText(index)) : QString(),
                       view->viewport());
    return true;
}
