#pragma once

#include <QProxyStyle>

// Qt's own style with outlines that can be seen on dark colours, too.
class OutlinedStyle : public QProxyStyle {
    Q_OBJECT
  public:
    OutlinedStyle();
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
};
