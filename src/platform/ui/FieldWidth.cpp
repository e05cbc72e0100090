#include "platform/ui/FieldWidth.h"

#include <QFontMetricsF>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QtMath>

namespace {

// What QLineEdit keeps free: 2 pixels on either side of the text, and one for the caret.
constexpr int innerMargins = 2 * 2 + 1;

}  // namespace

void setFieldWidth(QLineEdit *field, int characters, const QString &sample) {
    field->ensurePolished();
    const QFontMetricsF metrics(field->font());
    const qreal average = metrics.horizontalAdvance(sample) / static_cast<qreal>(sample.size());
    const QMargins margins = field->textMargins();
    QSize contents(qCeil(average * characters) + innerMargins, qCeil(metrics.height()));
    contents.rwidth() += margins.left() + margins.right();

    QStyleOptionFrame option;
    option.initFrom(field);
    option.lineWidth = field->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, field);
    field->setFixedWidth(
        field->style()->sizeFromContents(QStyle::CT_LineEdit, &option, contents, field).width());
}
