#include "battle/qt/QtBarInput.h"

#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

#include "base/qt/QtInput.h"
#include "base/qt/QtSpokenWidget.h"

namespace skylob {

namespace {

constexpr int kNotch = QWheelEvent::DefaultDeltasPerStep;
constexpr int kPatience = 1000;  // milliseconds

/// The digit of a key that is pressed alone; -1 for any other.
int digitOf(const QKeyEvent& key) {
    const bool isDigit = key.key() >= Qt::Key_0 && key.key() <= Qt::Key_9;
    return isDigit && isAlone(key) ? key.key() - Qt::Key_0 : -1;
}

}  // namespace

QtBarWheel::QtBarWheel(QScrollBar* bar) : QObject{bar}, m_bar{bar} {
    bar->installEventFilter(this);
}

bool QtBarWheel::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::Wheel || !m_bar->isEnabled()) return false;
    const auto* wheel = static_cast<QWheelEvent*>(event);
    // Fine wheels turn by less than a notch at a time.
    m_turned += wheel->angleDelta().y();
    const int notches = m_turned / kNotch;
    m_turned -= notches * kNotch;
    const bool isLarge = wheel->modifiers().testFlag(Qt::ControlModifier);
    m_bar->setValue(m_bar->value() + notches * (isLarge ? m_bar->pageStep() : m_bar->singleStep()));
    return true;
}

QtBarDigits::QtBarDigits(QScrollBar* bar, const BarRange& range)
    : QObject{bar},
      m_bar{bar},
      m_number{range},
      m_patience{new QTimer{this}},
      m_digits{new QLabel{bar}} {
    m_patience->setObjectName(QStringLiteral("timerDigits"));
    m_patience->setSingleShot(true);
    m_patience->setInterval(kPatience);
    connect(m_patience, &QTimer::timeout, this, &QtBarDigits::finish);
    m_digits->setProperty("role", QStringLiteral("digits"));
    m_digits->setAlignment(Qt::AlignCenter);
    m_digits->setAttribute(Qt::WA_TransparentForMouseEvents);
    keepFromReaders(*m_digits);  // the bar's description tells them
    m_digits->hide();
    bar->installEventFilter(this);
}

bool QtBarDigits::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
            if (const int digit = digitOf(*static_cast<QKeyEvent*>(event)); digit >= 0) {
                type(digit);
                return true;
            }
            m_number.drop();  // the key goes on from where the bar stands
            showDigits();
            return false;
        case QEvent::FocusOut:
            finish();
            return false;
        default:
            return false;
    }
}

void QtBarDigits::type(int digit) {
    set(m_number.type(digit));
}

void QtBarDigits::finish() {
    set(m_number.finish());
}

void QtBarDigits::set(std::optional<int> value) {
    showDigits();
    // A bar that has lost its turn meanwhile stays as it is.
    if (value && m_bar->isEnabled()) m_bar->setValue(*value);
}

void QtBarDigits::showDigits() {
    const QString digits = QString::fromStdString(m_number.digits());
    setSpokenDescription(*m_bar, digits);
    m_digits->setText(digits + QLatin1Char{'_'});
    m_digits->setGeometry(m_bar->rect().adjusted(20, 1, -20, -1));
    m_digits->setVisible(!digits.isEmpty());
    if (digits.isEmpty())
        m_patience->stop();
    else
        m_patience->start();
}

}  // namespace skylob
