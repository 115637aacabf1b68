#include "battle/qt/QtStormHold.h"

#include <QPainter>
#include <QWidget>

#include "look/qt/QtColour.h"

namespace skylob {

namespace {

/// Dims what is under it, and is not there for pointer and keyboard.
class Veil : public QWidget {
  public:
    explicit Veil(QWidget* screen) : QWidget{screen} {
        setObjectName(QStringLiteral("stormVeil"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QColor night = toQColor(themeColour("night"));
        night.setAlphaF(0.6F);
        QPainter{this}.fillRect(rect(), night);
    }
};

}  // namespace

QtStormHold::QtStormHold(QWidget& screen, int top, const QList<QObject*>& controls)
    : m_screen{screen}, m_veil{std::make_unique<Veil>(&screen)} {
    for (QObject* control : controls) m_deaf.emplace_back(control);
    m_screen.window()->setCursor(Qt::WaitCursor);
    fitVeil(top);
    m_veil->show();
}

QtStormHold::~QtStormHold() {
    m_screen.window()->unsetCursor();
}

void QtStormHold::fitVeil(int top) {
    m_veil->setGeometry(0, top, m_screen.width(), m_screen.height() - top);
}

}  // namespace skylob
