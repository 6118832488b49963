#include "shell/windows/splash.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QScreen>
#include <QWindow>

#include "ui_splash.h"

namespace gullymark::shell {

Splash::Splash() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint), ui_(new Ui::frmBrookSplash) {
    ui_->setupUi(this);
    setFixedSize(size());
    move(screen()->availableGeometry().center() - rect().center());
}

Splash::~Splash() = default;

void Splash::paint_now() {
    show();
    // The window system shows a window when it likes; a second is more than it ever takes.
    const QDeadlineTimer patience(1000);
    while (!windowHandle()->isExposed() && !patience.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 20);
    }
    repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void Splash::keyPressEvent(QKeyEvent* /*event*/) {
    close();
}

void Splash::mousePressEvent(QMouseEvent* /*event*/) {
    close();
}

}  // namespace gullymark::shell
