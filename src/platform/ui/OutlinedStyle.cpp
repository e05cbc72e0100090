#include "platform/ui/OutlinedStyle.h"

#include <QPainter>
#include <QStyleOption>

#include "platform/ui/Colours.h"

using namespace Qt::StringLiterals;

namespace {

// Backgrounds below this lightness (0..255) count as dark.
constexpr int darkest = 100;

}  // namespace

OutlinedStyle::OutlinedStyle() : QProxyStyle(u"fusion"_s) {}

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                  QPainter *painter, const QWidget *widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const QColor window = option->palette.color(QPalette::Window);
    if (window.lightness() >= darkest) return;
    // A field with the focus has a frame in the highlight's colour.
    const bool field =
        element == PE_FrameLineEdit && !option->state.testFlag(QStyle::State_HasFocus);
    const bool box = element == PE_IndicatorCheckBox, radio = element == PE_IndicatorRadioButton;
    if (!field && !box && !radio) return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, !box);
    painter->setPen(mixed(window, option->palette.color(QPalette::WindowText), 50));
    painter->setBrush(Qt::NoBrush);
    const QRectF outline = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (radio)
        painter->drawEllipse(outline);
    else
        painter->drawRoundedRect(outline, field ? 2 : 0, field ? 2 : 0);
    painter->restore();
}
