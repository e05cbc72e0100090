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

void FieldNote::keepLine() {
    m_keepsLine = true;
    updateGeometry();
}

void FieldNote::say(const QString &said, Kind kind) {
    m_kind = kind;
    colour();
    if (said == text()) return;
    setText(said);
    if (said.isEmpty() || kind == Kind::Rule) return;
    QAccessibleEvent announced(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&announced);
}

void FieldNote::colour() {
    const QPalette desktop = QGuiApplication::palette();
    const QColor text = desktop.color(QPalette::WindowText);
    const QColor ground = desktop.color(QPalette::Window);
    QPalette colours;
    colours.setColor(QPalette::WindowText, m_kind == Kind::Fault  ? faultColour(ground)
                                           : m_kind == Kind::Rule ? mixed(text, ground, rulePercent)
                                                                  : text);
    if (colours != palette()) setPalette(colours);
}

void FieldNote::changeEvent(QEvent *event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange) colour();
}

int FieldNote::heightForWidth(int width) const {
    const QFontMetrics metrics = fontMetrics();
    const int line = m_keepsLine ? metrics.height() : 0;
    if (text().isEmpty()) return line;
    const QRect room(0, 0, width, QWIDGETSIZE_MAX);
    return std::max(line, metrics.boundingRect(room, Qt::TextWordWrap, text()).height());
}

QSize FieldNote::sizeHint() const {
    const int width = fontMetrics().averageCharWidth() * usualWidth;
    return {width, heightForWidth(width)};
}

QSize FieldNote::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * leastWidth, 0};
}
