#include "app/qt/QtProgramTexts.h"

#include <QFile>
#include <QString>

namespace skylob {

namespace {

std::string resourceText(const QString& name) {
    QFile file{name};
    if (!file.open(QIODevice::ReadOnly)) qFatal("a text of the program is missing");
    return file.readAll().toStdString();
}

}  // namespace

StringTable programTexts() {
    StringTable texts;
    texts.addLines(resourceText(QStringLiteral(":/strings/commentary.txt")));
    for (const int topic : {kOverviewText, 1100, 1200, 1300})
        texts.add(topic, resourceText(QStringLiteral(":/strings/manual/%1.txt").arg(topic)));
    return texts;
}

}  // namespace skylob
