#pragma once

#include <QLabel>
#include <QStyle>

// The style's sign of a warning, as large as a small icon. It is made when it is first shown, since
// Qt looks through the icon themes for it.
class WarningSign : public QLabel {
  public:
    using QLabel::QLabel;

    QSize sizeHint() const override {
        const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
        return {side, side};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void showEvent(QShowEvent *event) override {
        if (pixmap().isNull())
            setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(sizeHint()));
        QLabel::showEvent(event);
    }
};
