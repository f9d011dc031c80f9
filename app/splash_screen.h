#pragma once

#include <QWidget>
#include <functional>

// The splash `frmSplash`: the product and its build, on top of every window, centred on the
// screen. It leaves after 6000 milliseconds, or sooner at any key or click, and then calls
// `done` once.
class SplashScreen : public QWidget {
  public:
    explicit SplashScreen(std::function<void()> done);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    void Leave();

    std::function<void()> m_done;
    bool m_left = false;
};

inline constexpr int SplashMilliseconds = 6000;
