#pragma once

#include <QLabel>
#include <QStyle>

// The style's small warning sign, made when it is first shown.
class WarningSign : public QLabel {
  public:
    explicit WarningSign(QWidget *parent = nullptr) : QLabel(parent) {
        setAlignment(Qt::AlignCenter);
    }

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
