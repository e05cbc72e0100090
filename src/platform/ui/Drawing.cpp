#include "platform/ui/Drawing.h"

#include <QBuffer>
#include <QEvent>
#include <QFile>
#include <QImageReader>

using namespace Qt::StringLiterals;

Drawing::Drawing(QWidget *parent) : QLabel(parent) {
    setAlignment(Qt::AlignCenter);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

bool Drawing::event(QEvent *event) {
    const bool done = QLabel::event(event);
    const auto type = event->type();
    const bool changed = type == QEvent::PaletteChange || type == QEvent::ScreenChangeInternal;
    if (type == QEvent::Show || (changed && isVisible())) draw();
    return done;
}

void Drawing::draw() {
    QFile file(u":/pictures/%1.svg"_s.arg(m_picture));
    if (!file.open(QIODevice::ReadOnly)) return;
    QByteArray svg = file.readAll();
    for (const auto &[inFile, role] :
         {std::pair("black", QPalette::WindowText), std::pair("white", QPalette::Base),
          std::pair("blue", QPalette::Highlight)})
        svg.replace(inFile, palette().color(role).name().toLatin1());
    QBuffer buffer(&svg);
    QImageReader reader(&buffer, "svg");
    reader.setScaledSize(drawingSize * devicePixelRatioF());
    QPixmap drawn = QPixmap::fromImageReader(&reader);
    drawn.setDevicePixelRatio(devicePixelRatioF());
    setPixmap(drawn);
}
