#pragma once

#include <QDialog>
#include <vector>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace skylob {

class GlintButton;
class QtShapes;

/// A message box or an input box in the program's look, modal while it is run with exec(). Enter
/// presses the button that has the focus, or else the default one; Esc and the window's frame
/// reject. All texts are plain.
class QtBox : public QDialog {
    Q_OBJECT

  public:
    enum class Answer { Yes, No, Ok, Cancel };

    /// `shapes` must outlive the box.
    QtBox(const QString& title, const QString& text, const QtShapes& shapes);

    /// Puts the drawing of that name before the text and has screen readers announce the box.
    void setIcon(const QString& drawing);

    /// Puts a line to be edited below the text, which it has for a name. It gets the focus.
    QLineEdit* addEntry(const QString& text);

    /// From left to right. Yes and Ok accept the box, No and Cancel reject it.
    void addButtons(const std::vector<Answer>& answers, Answer preset);

  protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    GlintButton* makeButton(Answer answer, bool isPreset);

    const QtShapes& m_shapes;
    QLabel* m_label;
    QHBoxLayout *m_message, *m_buttons;
    QVBoxLayout* m_texts;
    GlintButton* m_default = nullptr;
    bool m_isAlert = false;
};

}  // namespace skylob
