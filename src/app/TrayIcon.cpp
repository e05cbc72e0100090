#include "app/TrayIcon.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <algorithm>

#include "app/Notice.h"
#include "platform/core/Texts.h"

void TrayIcon::watch(QWidget *window) {
    m_windows.removeAll(nullptr);
    m_windows << window;
    window->installEventFilter(this);
}

// Followed later: one window may take the place of another.
bool TrayIcon::eventFilter(QObject *, QEvent *event) {
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
        QTimer::singleShot(0, this, &TrayIcon::follow);
    return false;
}

void TrayIcon::follow() {
    const bool visible = std::any_of(m_windows.cbegin(), m_windows.cend(), [](const auto &window) {
        return window && window->isVisible();
    });
    const bool wanted = !visible && m_hasTray();
    if (wanted && !m_icon) make();
    if (m_icon) m_icon->setVisible(wanted);
    if (visible && m_notice) m_notice->close();
    if (m_wasVisible && !visible) {
        if (!m_notice) {
            m_notice = new Notice(m_bus(), this);
            connect(m_notice, &Notice::windowsWanted, this, &TrayIcon::windowsWanted);
        }
        m_notice->show();
    }
    m_wasVisible = visible;
}

void TrayIcon::make() {
    m_menu = std::make_unique<QMenu>();
    m_menu->addAction(localized("DWT_Localize_Tray_Show"), this, &TrayIcon::windowsWanted);
    m_menu->addSeparator();
    m_menu->addAction(localized("DWT_Localize_Menu_Quit"), this, &TrayIcon::quitWanted);
    m_icon = new QSystemTrayIcon(QApplication::windowIcon(), this);
    m_icon->setToolTip(localized("DWT_Localize_App_Name"));
    m_icon->setContextMenu(m_menu.get());
    connect(m_icon, &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::Trigger) Q_EMIT windowsWanted();
            });
}
