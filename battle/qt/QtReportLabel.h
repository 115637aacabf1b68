#pragma once

#include <QLabel>

namespace skylob {

/// A line of plain text that stays where it is whatever it says: a long one is set smaller, one
/// that is longer still is cut at its end and stands whole in the tool tip.
class QtReportLabel : public QLabel {
    Q_OBJECT

  public:
    explicit QtReportLabel(QWidget* parent);

    void showReport(const QString& text);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    QString m_report;  ///< uncut
};

}  // namespace skylob
