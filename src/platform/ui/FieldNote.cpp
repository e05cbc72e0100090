#include "platform/ui/FieldNote.h"

#include <QAccessible>
#include <QGuiApplication>
#include <algorithm>

#include "platform/ui/Colours.h"

namespace {

// The size of the font, in hundredths of the usual one.
constexpr int fontSize = 88;

// The width that is wished for, and the least, in letters.
constexpr int usualWidth = 58, leastWidth = 24;

// How much of the colour of text a rule has, in hundredths.
constexpr int rulePercent = 75;

}  // namespace

FieldNote::FieldNote(QWidget *parent) : QLabel(parent) {
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * fontSize / 100);
    setFont(small);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignLeading | Qt::AlignTop);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void FieldNote::keepRoomFor(const QString &text) {
    m_room = text;
    updateGeometry();
}

void FieldNote::say(const QString &said, Kind kind) {
    QPalette colours;
    colours.setColor(QPalette::WindowText, colourOf(kind));
    setPalette(colours);
    if (said == text()) return;
    setText(said);
    if (said.isEmpty() || kind == Kind::Rule) return;
    QAccessibleEvent announced(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&announced);
}

QColor FieldNote::colourOf(Kind kind) const {
    const QPalette colours = QGuiApplication::palette();
    if (kind == Kind::Fault) return faultColour(colours.color(QPalette::Window));
    const QColor text = colours.color(QPalette::WindowText);
    return kind == Kind::Rule ? mixed(text, colours.color(QPalette::Window), rulePercent) : text;
}

int FieldNote::heightOf(const QString &text, int width) const {
    if (text.isEmpty()) return 0;
    const QRect room(0, 0, width, QWIDGETSIZE_MAX);
    return fontMetrics().boundingRect(room, Qt::TextWordWrap, text).height();
}

int FieldNote::heightForWidth(int width) const {
    return std::max(heightOf(text(), width), heightOf(m_room, width));
}

QSize FieldNote::sizeHint() const {
    const int width = fontMetrics().averageCharWidth() * usualWidth;
    return {width, heightForWidth(width)};
}

QSize FieldNote::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * leastWidth, 0};
}
