#pragma once

#include <QProxyStyle>

// Qt's own style with frames that can be seen on dark colours too: it derives the outlines of
// fields, check boxes and radio buttons from the background by darkening it, which leaves nothing
// of them on a dark one.
class OutlinedStyle : public QProxyStyle {
    Q_OBJECT
  public:
    OutlinedStyle();
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
};
