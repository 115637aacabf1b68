#pragma once

#include <QJsonObject>
#include <QSet>
#include <QString>
#include <utility>

#include "controls/PropertyBag.h"

namespace skylob {

/// The property bags of one form: a JSON file that holds each of its controls by name, and in it
/// each value by key. Fonts are objects with "name", "size", "bold", "italic", "underline".
///
/// An entry of the wrong type is reported once on standard error and counts as missing.
class QtPropertyBagFile {
  public:
    /// One control's bag; valid as long as the file's object.
    class Bag final : public PropertyBag {
      public:
        std::int32_t readInteger(std::string_view key, std::int32_t fallback) const override;
        bool readBoolean(std::string_view key, bool fallback) const override;
        std::string readText(std::string_view key, const std::string& fallback) const override;
        GlintFont readFont(std::string_view key, const GlintFont& fallback) const override;
        void writeInteger(std::string_view key, std::int32_t value) override;
        void writeBoolean(std::string_view key, bool value) override;
        void writeText(std::string_view key, const std::string& value) override;
        void writeFont(std::string_view key, const GlintFont& value) override;

      private:
        friend class QtPropertyBagFile;
        Bag(QtPropertyBagFile& file, QString control)
            : m_file{file}, m_control{std::move(control)} {}
        QJsonValue find(std::string_view key) const;
        void write(std::string_view key, const QJsonValue& value);
        void report(std::string_view key, const char* wanted) const;

        QtPropertyBagFile& m_file;
        QString m_control;
    };

    /// Reads the file's bytes; `name` stands for the file in reports. What is no JSON object is
    /// reported and counts as empty.
    QtPropertyBagFile(const QByteArray& json, QString name);

    Bag bag(const QString& control) { return Bag{*this, control}; }

    /// The file's bytes: reading them and writing them again gives the same ones.
    QByteArray toJson() const;

  private:
    void report(const QString& text);

    QString m_name;
    QJsonObject m_controls;
    QSet<QString> m_reported;
};

/// The bags of a form compiled into the program, by its name.
QtPropertyBagFile formBags(const QString& form);

}  // namespace skylob
