#pragma once

#include <optional>
#include <string>

namespace skylob {

enum class BoxIcon { Information, Question, Critical };
enum class BoxButtons { Ok, YesNo };
enum class BoxAnswer { Ok, Yes, No };

/// What a message box shows: plain text, UTF-8, line breaks as "\r\n" or "\n".
struct MessageBox {
    std::string title;
    std::string text;
    BoxIcon icon = BoxIcon::Information;
    BoxButtons buttons = BoxButtons::Ok;
    BoxAnswer preset = BoxAnswer::Yes;  ///< what Enter answers to a question
};

/// What an input box shows; the same kind of texts.
struct InputBox {
    std::string title;
    std::string prompt;
    std::string entry;  ///< stands in the box already
};

class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;

    /// Shows the box modally and returns what the user answered. Closing a Yes/No box without
    /// an answer counts as No, closing another one as Ok.
    virtual BoxAnswer show(const MessageBox& box) = 0;

    /// Shows the box modally and returns what the user entered, UTF-8 in composed characters;
    /// nothing when it was cancelled.
    virtual std::optional<std::string> ask(const InputBox& box) = 0;
};

}  // namespace skylob
