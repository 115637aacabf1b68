#include "controls/qt/QtPropertyBagFile.h"

#include <QFile>
#include <QJsonDocument>
#include <cmath>
#include <cstdio>
#include <limits>
#include <optional>

#include "base/qt/QtText.h"

namespace skylob {

using namespace Qt::StringLiterals;

namespace {

std::optional<std::int32_t> wholeNumber(const QJsonValue& value) {
    const double number = value.toDouble(std::numeric_limits<double>::quiet_NaN());
    if (!(std::abs(number) <= 2147483648.0) || number != std::floor(number)) return std::nullopt;
    if (number > 2147483647.0) return std::nullopt;
    return static_cast<std::int32_t>(number);
}

std::optional<GlintFont> font(const QJsonValue& value) {
    const QJsonObject object = value.toObject();
    if (!object["name"_L1].isString() || !object["size"_L1].isDouble()) return std::nullopt;
    for (const auto flag : {"bold"_L1, "italic"_L1, "underline"_L1})
        if (object.contains(flag) && !object[flag].isBool()) return std::nullopt;
    return GlintFont{.name = object["name"_L1].toString().toStdString(),
                     .size = static_cast<float>(object["size"_L1].toDouble()),
                     .bold = object["bold"_L1].toBool(),
                     .italic = object["italic"_L1].toBool(),
                     .underline = object["underline"_L1].toBool()};
}

}  // namespace

QtPropertyBagFile::QtPropertyBagFile(const QByteArray& json, QString name)
    : m_name{std::move(name)} {
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    m_controls = document.object();
    if (!document.isObject()) report(QStringLiteral("no controls: ") + error.errorString());
    for (auto control = m_controls.begin(); control != m_controls.end(); ++control)
        if (!control.value().isObject()) report(control.key() + QStringLiteral(" is no control"));
}

QByteArray QtPropertyBagFile::toJson() const {
    return QJsonDocument{m_controls}.toJson();
}

void QtPropertyBagFile::report(const QString& text) {
    if (m_reported.contains(text)) return;
    m_reported.insert(text);
    std::fprintf(stderr, "skylob: form %s: %s\n", qUtf8Printable(m_name), qUtf8Printable(text));
}

QJsonValue QtPropertyBagFile::Bag::find(std::string_view key) const {
    return m_file.m_controls.value(m_control).toObject().value(toQt(key));
}

void QtPropertyBagFile::Bag::write(std::string_view key, const QJsonValue& value) {
    QJsonObject entries = m_file.m_controls.value(m_control).toObject();
    entries.insert(toQt(key), value);
    m_file.m_controls.insert(m_control, entries);
}

void QtPropertyBagFile::Bag::report(std::string_view key, const char* wanted) const {
    m_file.report(
        QStringLiteral("%1.%2 is no %3").arg(m_control, toQt(key), QLatin1String{wanted}));
}

std::int32_t QtPropertyBagFile::Bag::readInteger(std::string_view key,
                                                 std::int32_t fallback) const {
    const QJsonValue value = find(key);
    if (value.isUndefined()) return fallback;
    const auto number = wholeNumber(value);
    if (!number) report(key, "whole number");
    return number.value_or(fallback);
}

bool QtPropertyBagFile::Bag::readBoolean(std::string_view key, bool fallback) const {
    const QJsonValue value = find(key);
    if (value.isUndefined() || value.isBool()) return value.toBool(fallback);
    report(key, "truth value");
    return fallback;
}

std::string QtPropertyBagFile::Bag::readText(std::string_view key,
                                             const std::string& fallback) const {
    const QJsonValue value = find(key);
    if (value.isString()) return value.toString().toStdString();
    if (!value.isUndefined()) report(key, "text");
    return fallback;
}

GlintFont QtPropertyBagFile::Bag::readFont(std::string_view key, const GlintFont& fallback) const {
    const QJsonValue value = find(key);
    if (value.isUndefined()) return fallback;
    const auto stored = font(value);
    if (!stored) report(key, "font");
    return stored.value_or(fallback);
}

void QtPropertyBagFile::Bag::writeInteger(std::string_view key, std::int32_t value) {
    write(key, value);
}

void QtPropertyBagFile::Bag::writeBoolean(std::string_view key, bool value) {
    write(key, value);
}

void QtPropertyBagFile::Bag::writeText(std::string_view key, const std::string& value) {
    write(key, QString::fromStdString(value));
}

void QtPropertyBagFile::Bag::writeFont(std::string_view key, const GlintFont& value) {
    write(key, QJsonObject{{"name"_L1, QString::fromStdString(value.name)},
                           {"size"_L1, value.size},
                           {"bold"_L1, value.bold},
                           {"italic"_L1, value.italic},
                           {"underline"_L1, value.underline}});
}

QtPropertyBagFile formBags(const QString& form) {
    QFile file{QStringLiteral(":/forms/%1.json").arg(form)};
    if (!file.open(QIODevice::ReadOnly)) qFatal("the form %s is missing", qPrintable(form));
    return {file.readAll(), form};
}

}  // namespace skylob
