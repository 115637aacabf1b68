#include <QFileDialog>
#include <QPrinterInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "manual/qt/QtManualPrinter.h"

using namespace skylob;

namespace {

/// What stands on the pages of a PDF, each page followed by a form feed.
QString textOf(const QString& pdf, const QStringList& options) {
    QProcess process;
    process.start("pdftotext", options + QStringList{pdf, "-"});
    if (!process.waitForFinished() || process.exitCode() != 0) return {};
    return QString::fromUtf8(process.readAllStandardOutput());
}

}  // namespace

class PrintTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() {
        qputenv("CUPS_SERVER", "/nonexistent");  // nothing here is to come out of a real printer
    }

    void keepsItsMarginsInArial() {
        const QString pdf = m_folder.filePath("margins.pdf");
        const std::string lines = QString{"Ünder \u2019 "}.repeated(600).toStdString();
        QVERIFY(printToPdf(pdf, "Header", lines));
        QVERIFY(textOf(pdf, {}).contains("Ünder \u2019 Ünder"));
        static const QRegularExpression word{
            "xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" xMax=\"([\\d.]+)\" yMax=\"([\\d.]+)\""};
        QRectF seen;
        auto words = word.globalMatch(textOf(pdf, {"-bbox"}));
        while (words.hasNext()) {
            const QRegularExpressionMatch box = words.next();
            const auto inches = [&box](int edge) { return box.captured(edge).toDouble() / 72; };
            seen |= QRectF{QPointF{inches(1), inches(2)}, QPointF{inches(3), inches(4)}};
        }
        QVERIFY(qAbs(seen.left() - 1) < 0.02 && qAbs(seen.top() - 1) < 0.05);
        QVERIFY(seen.right() > 7 && seen.right() < 7.52);
        QVERIFY(seen.bottom() > 8 && seen.bottom() < 8.82);
        QVERIFY(!printToPdf(m_folder.filePath("missing/topic.pdf"), "Header", "Text"));
        QProcess fonts;
        fonts.start("pdffonts", {pdf});
        QVERIFY(fonts.waitForFinished());
        const QByteArray names = fonts.readAllStandardOutput();
        QVERIFY2(names.contains("LiberationSans") || names.contains("Arial"), names);
    }

    void asksForAFileWithoutAPrinter() {
        if (!QPrinterInfo::defaultPrinter().isNull()) QSKIP("there is a printer");
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QWidget window;
        const QString pdf = m_folder.filePath("asked");
        for (const bool cancel : {true, false}) {
            bool asked = false;
            QTimer::singleShot(0, [&] {
                auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                asked = dialog != nullptr;
                if (!asked) return;
                dialog->selectFile(pdf);
                cancel ? dialog->reject() : static_cast<QDialog*>(dialog)->accept();
            });
            printManual(window, "Header", "Some text");
            QVERIFY(asked);
            QCOMPARE(QFile::exists(pdf + ".pdf"), !cancel);
            QVERIFY(QApplication::overrideCursor() == nullptr);
        }
        QVERIFY(textOf(pdf + ".pdf", {}).contains("Some text"));
    }

  private:
    QTemporaryDir m_folder;
};

QTEST_MAIN(PrintTest)
#include "PrintTest.moc"
