#include "app/splash_screen.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

SplashScreen::SplashScreen(std::function<void()> done)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      m_done(std::move(done)) {
    setObjectName("frmSplash");
    setWindowTitle("Korvath 3.0");
    setStyleSheet("QWidget#frmSplash { background: white; border: 1px solid #8a8a8a; }");
    auto* product = new QLabel("Korvath 3.0", this);
    QFont big = product->font();
    big.setPointSize(28);
    big.setBold(true);
    product->setFont(big);
    product->setAlignment(Qt::AlignCenter);
    auto* method = new QLabel("Post-Tensioned Slabs-On-Ground\nby the method of the PTI manual, "
                              "3rd Edition",
                              this);
    method->setAlignment(Qt::AlignCenter);
    auto* build = new QLabel("Build 100712", this);
    build->setObjectName("lblBuild");
    build->setAlignment(Qt::AlignCenter);
    auto* maker = new QLabel("Brellin Works", this);
    maker->setAlignment(Qt::AlignCenter);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(40, 30, 40, 30);
    layout->addWidget(product);
    layout->addWidget(method);
    layout->addSpacing(12);
    layout->addWidget(build);
    layout->addWidget(maker);
    resize(480, 260);
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        const QRect area = screen->geometry();
        move(area.left() + (area.width() - width()) / 2,
             area.top() + (area.height() - height()) / 2);
    }
    QTimer::singleShot(SplashMilliseconds, this, [this] { Leave(); });
}

void SplashScreen::keyPressEvent(QKeyEvent*) {
    Leave();
}

void SplashScreen::mousePressEvent(QMouseEvent*) {
    Leave();
}

void SplashScreen::Leave() {
    if (m_left) {
        return;
    }
    m_left = true;
    hide();
    if (m_done) {
        m_done();
    }
}
