#include "platform/ui/FieldLooks.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionFrame>
#include <utility>

#include "platform/core/Texts.h"

namespace {

// Tells a field that a menu opens, when a menu bar takes the focus.
class MenuFilter : public QObject {
  public:
    bool eventFilter(QObject *field, QEvent *event) override {
        if (event->type() != QEvent::FocusOut ||
            static_cast<QFocusEvent *>(event)->reason() != Qt::MenuBarFocusReason)
            return false;
        QFocusEvent menuOpens(QEvent::FocusOut, Qt::PopupFocusReason);
        QCoreApplication::sendEvent(field, &menuOpens);
        return true;
    }
};

void setWidth(QLineEdit *field, const QString &sample) {
    QStyleOptionFrame option;
    option.initFrom(field);
    option.lineWidth = field->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, field);
    const QFontMetrics metrics(field->font());
    const int bullet = field->style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter);
    const QString shown =
        field->echoMode() == QLineEdit::Normal ? sample : QString(sample.size(), QChar(bullet));
    // A line edit keeps 2 px beside its text on either side, and room for the caret.
    const QSize text(metrics.horizontalAdvance(shown) + 6, metrics.height());
    const QSize size = field->style()->sizeFromContents(QStyle::CT_LineEdit, &option, text, field);
    field->setFixedWidth(size.width());
}

// Keeps a field as wide as its sample when the desktop's letters change.
class WidthKeeper : public QObject {
  public:
    WidthKeeper(QLineEdit *field, QString sample)
        : QObject(field), m_field(field), m_sample(std::move(sample)) {
        field->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::FontChange) setWidth(m_field, m_sample);
        return false;
    }

  private:
    QLineEdit *const m_field;
    const QString m_sample;
};

}  // namespace

void fitWidth(QLineEdit *field, const QString &sample) {
    field->ensurePolished();
    setWidth(field, sample);
    new WidthKeeper(field, sample);
}

void keepSelectionInMenus(QLineEdit *field) {
    static MenuFilter filter;  // the same for all: a field that has it already keeps one
    field->installEventFilter(&filter);
}

void showAsValue(QLineEdit *field, bool on) {
    keepSelectionInMenus(field);
    field->setReadOnly(on);
    field->setFrame(!on);
    QPalette palette;
    if (on) palette.setBrush(QPalette::Base, Qt::transparent);
    field->setPalette(palette);
}

void keepLegible(QWidget *panel, bool on) {
    QPalette palette;
    if (on)
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            palette.setBrush(QPalette::Disabled, role, palette.brush(QPalette::Active, role));
    panel->setPalette(palette);
    QPalette disabled;
    if (on)
        disabled.setBrush(
            QPalette::Disabled, QPalette::ButtonText,
            QGuiApplication::palette().brush(QPalette::Disabled, QPalette::ButtonText));
    for (auto *button : panel->findChildren<QPushButton *>()) button->setPalette(disabled);
}

void nameByLabels(const QWidget *panel) {
    for (const QLabel *label : panel->findChildren<QLabel *>())
        if (label->buddy() && label->buddy()->accessibleName().isEmpty())
            label->buddy()->setAccessibleName(nameInLabel(label->text()));
}

void showAsDigits(QLineEdit *field) {
    showAsValue(field);
    field->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
}
