#include "controls/qt/GlintButtonInput.h"

#include <QCursor>
#include <QImage>
#include <QPixmap>

namespace skylob {

std::int16_t glintButton(Qt::MouseButton button) {
    switch (button) {
        case Qt::LeftButton:
            return kMouseLeft;
        case Qt::RightButton:
            return kMouseRight;
        case Qt::MiddleButton:
            return kMouseMiddle;
        default:
            return 0;
    }
}

std::int16_t glintButtons(Qt::MouseButtons buttons) {
    int sum = 0;
    for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
        if (buttons & button) sum += glintButton(button);
    return static_cast<std::int16_t>(sum);
}

std::int16_t glintShift(Qt::KeyboardModifiers modifiers) {
    int sum = 0;
    if (modifiers & Qt::ShiftModifier) sum += kHeldShift;
    if (modifiers & Qt::ControlModifier) sum += kHeldControl;
    if (modifiers & Qt::AltModifier) sum += kHeldAlt;
    return static_cast<std::int16_t>(sum);
}

GlintMouse glintMouse(const QMouseEvent& event, std::int16_t button) {
    return {button, glintShift(event.modifiers()), static_cast<float>(event.position().x()),
            static_cast<float>(event.position().y())};
}

std::int16_t glintKeyCode(int key) {
    if (key >= Qt::Key_F1 && key <= Qt::Key_F16)
        return static_cast<std::int16_t>(112 + key - Qt::Key_F1);
    // Space, digits and letters have their own codes; the keyboard's other signs have none that
    // is the same everywhere.
    if (key == Qt::Key_Space || (key >= Qt::Key_0 && key <= Qt::Key_9) ||
        (key >= Qt::Key_A && key <= Qt::Key_Z))
        return static_cast<std::int16_t>(key);
    switch (key) {
        case Qt::Key_Backspace:
            return 8;
        case Qt::Key_Tab:
            return 9;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return 13;
        case Qt::Key_Shift:
            return 16;
        case Qt::Key_Control:
            return 17;
        case Qt::Key_Alt:
            return 18;
        case Qt::Key_Escape:
            return 27;
        case Qt::Key_PageUp:
            return 33;
        case Qt::Key_PageDown:
            return 34;
        case Qt::Key_End:
            return 35;
        case Qt::Key_Home:
            return 36;
        case Qt::Key_Left:
            return 37;
        case Qt::Key_Up:
            return 38;
        case Qt::Key_Right:
            return 39;
        case Qt::Key_Down:
            return 40;
        case Qt::Key_Insert:
            return 45;
        case Qt::Key_Delete:
            return 46;
        default:
            return 0;
    }
}

QCursor glintCursor(std::int16_t shape, const QImage& icon) {
    switch (shape) {
        case 2:
            return Qt::CrossCursor;
        case 3:
            return Qt::IBeamCursor;
        case 5:
            return Qt::SizeAllCursor;
        case 6:
            return Qt::SizeBDiagCursor;
        case 7:
            return Qt::SizeVerCursor;
        case 8:
            return Qt::SizeFDiagCursor;
        case 9:
            return Qt::SizeHorCursor;
        case 10:
            return Qt::UpArrowCursor;
        case 11:
            return Qt::WaitCursor;
        case 12:
            return Qt::ForbiddenCursor;
        case 13:
            return Qt::BusyCursor;
        case 14:
            return Qt::WhatsThisCursor;
        case kOwnShape:
            return icon.isNull() ? QCursor{} : QCursor{QPixmap::fromImage(icon)};
        default:
            return {};
    }
}

}  // namespace skylob
