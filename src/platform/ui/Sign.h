#pragma once

#include <QIcon>
#include <QLabel>
#include <QStyle>

// The sign beside a heading, as large as the style's large icons. Its heading says the same.
class Sign : public QLabel {
  public:
    enum Kind { Question, Information, Warning, Error, Done };

    using QLabel::QLabel;

    // Shows the sign of a kind; before, there is none.
    void setKind(Kind kind) {
        const int side = style()->pixelMetric(QStyle::PM_LargeIconSize);
        setPixmap(iconOf(kind).pixmap(QSize(side, side)));
    }

  private:
    QIcon iconOf(Kind kind) const {
        switch (kind) {
            case Question:
                return style()->standardIcon(QStyle::SP_MessageBoxQuestion);
            case Information:
                return style()->standardIcon(QStyle::SP_MessageBoxInformation);
            case Warning:
                return style()->standardIcon(QStyle::SP_MessageBoxWarning);
            case Error:
                return style()->standardIcon(QStyle::SP_MessageBoxCritical);
            case Done:
                break;
        }
        return QIcon(QStringLiteral(":/pictures/done.svg"));
    }
};
