#include "manual/qt/QtManualPrinter.h"

#include <QApplication>
#include <QFileDialog>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <QTimer>
#include <QWindow>
#include <string_view>

#include "base/qt/QtText.h"
#include "manual/PrintLayout.h"
#include "screen/qt/QtInputGate.h"

namespace skylob {

namespace {

QFont printerFont() {
    QFont font;
    font.setPointSize(11);
    // Quirk "font set twice": always in this order, and the second one prints.
    font.setFamily(QStringLiteral("Courier"));
    font.setFamily(QStringLiteral("Arial"));
    return font;
}

/// False where the printer refuses to begin.
bool printPages(QPrinter& printer, const std::string& header, const std::string& text) {
    printer.setFullPage(true);  // inches are counted from the corner of the sheet
    printer.setDocName(toQt(header));
    QPainter painter;
    if (!painter.begin(&printer)) return false;
    painter.setFont(printerFont());
    const QFontMetricsF metrics{painter.font(), &printer};
    const double inch = printer.resolution();
    const PrintMeasures measures{
        [&](std::string_view piece) { return metrics.horizontalAdvance(toQt(piece)) / inch; },
        metrics.lineSpacing() / inch};
    bool first = true;
    for (const PrintedPage& page : layOutPages(header, text, measures)) {
        if (!first && !printer.newPage()) break;
        first = false;
        for (const PrintedText& piece : page)
            painter.drawText(QPointF{piece.x * inch, piece.y * inch + metrics.ascent()},
                             toQt(piece.text));
    }
    return painter.end();
}

QString askForFile(QWidget& window) {
    // Without a parent it keeps the desktop's look.
    QFileDialog dialog{nullptr, QStringLiteral("Print to a File"),
                       QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                       QStringLiteral("PDF files (*.pdf)")};
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    dialog.selectFile(QStringLiteral("Skylob.pdf"));
    dialog.winId();  // makes the window
    dialog.windowHandle()->setTransientParent(window.windowHandle());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString{};
}

}  // namespace

bool printToPdf(const QString& file, const std::string& header, const std::string& text) {
    QPrinter printer{QPrinter::HighResolution};
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    return printPages(printer, header, text);
}

bool printManual(QWidget& window, const std::string& header, const std::string& text) {
    const bool hasPrinter = !QPrinterInfo::defaultPrinter().isNull();
    const QString file = hasPrinter ? QString{} : askForFile(window);
    if (!hasPrinter && file.isEmpty()) return true;
    auto* gate = new QtInputGate{&window};
    gate->close();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    bool done = true;
    if (hasPrinter) {
        QPrinter printer{QPrinter::HighResolution};
        printPages(printer, header, text);
    } else {
        done = printToPdf(file, header, text);
    }
    QApplication::restoreOverrideCursor();
    // When the input that has been waiting is dropped, and not from here: events that are let in
    // meanwhile may delete the window.
    QTimer::singleShot(0, gate, &QObject::deleteLater);
    return done;
}

}  // namespace skylob
