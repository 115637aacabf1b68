#pragma once

#include <QLabel>

namespace skylob {

/// A line of plain text that stays where it is whatever it says: a long one is set smaller, one
/// that is longer still is cut at its end and stands whole in the tool tip. Screen readers are told
/// it whole, and speak it once when it changes.
class QtReportLabel : public QLabel {
    Q_OBJECT

  public:
    explicit QtReportLabel(QWidget* parent);

    /// A report that comes back after a countdown is not spoken again.
    void showReport(const QString& text);

    /// A text with a clock in it, such as "1:01", which is heard without: it is spoken when another
    /// text comes, and not at every second.
    void showCountdown(const QString& text);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void put(const QString& text, const QString& spoken);
    void speak();

    QString m_text;    ///< uncut
    QString m_report;  ///< the last one that was spoken
};

}  // namespace skylob
