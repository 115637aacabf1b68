#include <QFileDialog>
#include <QPrinterInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "manual/qt/QtManualPrinter.h"
#include "tests/support/ScreenTest.h"

using namespace skylob;

class PrintTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() {
        qputenv("CUPS_SERVER", "/nonexistent");  // nothing here is to come out of a real printer
    }

    void keepsItsMarginsInArial() {
        const QString pdf = m_folder.filePath("margins.pdf");
        QVERIFY(printToPdf(pdf, "Header", QString{"Ünder \u2019 "}.repeated(600).toStdString()));
        QVERIFY(output("pdftotext", {pdf, "-"}).contains("Ünder \u2019 Ünder"));
        static const QRegularExpression word{
            "xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" xMax=\"([\\d.]+)\" yMax=\"([\\d.]+)\""};
        QRectF seen;  // in points, 72 of them an inch
        auto words = word.globalMatch(output("pdftotext", {"-bbox", pdf, "-"}));
        while (words.hasNext()) {
            const auto at = [box = words.next()](int edge) {
                return box.captured(edge).toDouble();
            };
            seen |= QRectF{QPointF{at(1), at(2)}, QPointF{at(3), at(4)}};
        }
        QCOMPARE_LT(qAbs(seen.left() / 72 - 1), 0.02);
        QCOMPARE_LT(qAbs(seen.top() / 72 - 1), 0.05);
        QCOMPARE_LT(qAbs(seen.right() / 72 - 7.26), 0.26);
        QCOMPARE_LT(qAbs(seen.bottom() / 72 - 8.41), 0.41);
        const QString fonts = output("pdffonts", {pdf});
        QVERIFY2(fonts.contains(QRegularExpression{"LiberationSans|Arial"}), qPrintable(fonts));
        QVERIFY(!printToPdf(m_folder.filePath("missing/topic.pdf"), "Header", "Text"));
    }

    void asksForAFileWithoutAPrinter() {
        if (!QPrinterInfo::defaultPrinter().isNull()) QSKIP("there is a printer");
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QWidget window;
        const QString pdf = m_folder.filePath("asked");
        for (const auto answer : {QDialog::Rejected, QDialog::Accepted}) {
            QFileDialog* dialog = nullptr;
            QTimer::singleShot(0, [&] {
                dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                if (!dialog) return;
                dialog->selectFile(pdf);
                answer ? static_cast<QDialog*>(dialog)->accept() : dialog->reject();
            });
            printManual(window, "Header", "Some text");
            QVERIFY(dialog);
            QCOMPARE(QFile::exists(pdf + ".pdf"), answer == QDialog::Accepted);
            QVERIFY(QApplication::overrideCursor() == nullptr);
        }
        QVERIFY(output("pdftotext", {pdf + ".pdf", "-"}).contains("Some text"));
    }

  private:
    /// What a program that looks into PDF files prints; nothing when it fails.
    static QString output(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        if (!process.waitForFinished() || process.exitCode() != 0) return {};
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    const QTemporaryDir m_folder;
};

int PrintTest_main(int argc, char** argv) {
    return skylob::test::runTest<PrintTest>(argc, argv);
}
#include "PrintTest.moc"
