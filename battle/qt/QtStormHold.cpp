#include "battle/qt/QtStormHold.h"

#include <QLabel>
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

QtStormHold::QtStormHold(QWidget& screen, QLabel& line, const QList<QObject*>& controls)
    : m_screen{screen},
      m_line{line},
      m_lineBefore{line.text()},
      m_veil{std::make_unique<Veil>(&screen)} {
    for (QObject* control : controls) m_deaf.emplace_back(control);
    m_screen.setCursor(Qt::WaitCursor);
    fitVeil();
    m_veil->show();
}

QtStormHold::~QtStormHold() {
    m_screen.unsetCursor();
    m_line.setText(m_lineBefore);
}

void QtStormHold::fitVeil() {
    const int top = m_line.geometry().bottom() + 1;
    m_veil->setGeometry(0, top, m_screen.width(), m_screen.height() - top);
}

}  // namespace skylob
