#include "app/qt/QtCommandLine.h"

#include <QCommandLineParser>
#include <algorithm>
#include <charconv>
#include <optional>

#include "base/Scale.h"

namespace skylob {

namespace {

/// An option of the command line. One without a value sets a flag of CommandLine.
struct Option {
    const char* name;
    char letter;                ///< its short name, or 0
    const char* value;          ///< what --help calls its value, or null
    bool CommandLine::*chosen;  ///< the flag it sets, or null where it takes more than that
    const char* help;           ///< its lines in --help
};

constexpr Option kOptions[]{
    {"data-dir", 0, "DIR", nullptr, "keep the player list in the folder DIR (made if missing)"},
    {"user-data", 0, nullptr, &CommandLine::userData,
     "keep it in your own data folder\n(otherwise: in the folder that the program is started in)"},
    {"plain", 0, nullptr, &CommandLine::plain,
     "no light over the battlefield (\"Effects\" in the battle)"},
    {"reduced-motion", 0, nullptr, &CommandLine::reducedMotion,
     "nothing moves or flashes for show\n(otherwise: where the desktop's settings say so)"},
    {"scale", 0, "PERCENT", nullptr,
     "how large everything is, 100 to 200\n(\"Size\" on the title page keeps it)"},
    {"seed", 0, "N", nullptr, "repeatable chance: the same seed, the same battlefields"},
    {"record", 0, "FILE", nullptr, "write each set down in FILE, in place of the one before"},
    {"replay", 0, "FILE", nullptr, "show the set that is written down in FILE, and leave"},
    {"help", 'h', nullptr, nullptr, "print this text"},
    {"version", 'v', nullptr, nullptr, "print the version"},
};

constexpr const char* kFiles =
    "\n"
    "Files:\n"
    "  Skylob.Data                   the player list; TempFile.$$$ while it changes;\n"
    "                                an earlier version's Skylob.Dat gets its name\n"
    "  ~/.local/share/Skylob/        where --user-data keeps it ($XDG_DATA_HOME)\n"
    "  ~/.config/Skylob/Skylob.ini   your settings ($XDG_CONFIG_HOME)\n"
    "  ~/.config/Skylob/Windows.ini  where windows stood, size, volume, effects\n"
    "  $XDG_RUNTIME_DIR/Skylob.lock  held while the game runs (or in /tmp/skylob-UID)\n";

std::string helpOn(const Option& option) {
    constexpr std::size_t kColumn = 23;
    std::string text = option.letter ? std::string{"  -"} + option.letter + ", --" : "      --";
    text += option.name;
    if (option.value) text += std::string{" "} + option.value;
    text.resize(std::max(text.size() + 1, kColumn), ' ');
    for (const char letter : std::string_view{option.help}) {
        text += letter;
        if (letter == '\n') text.append(kColumn, ' ');
    }
    return text + '\n';
}

CommandLine asked(CommandLine::Request request) {
    CommandLine result;
    result.request = request;
    return result;
}

CommandLine refused(std::string error) {
    CommandLine result = asked(CommandLine::Request::Refused);
    result.error = std::move(error);
    return result;
}

/// Nothing when the toolkit would read other bytes than these.
std::optional<QString> readBytes(std::string_view bytes) {
    QString text = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    if (text.toUtf8().toStdString() != bytes) return std::nullopt;
    return text;
}

void declareOptions(QCommandLineParser& parser) {
    for (const Option& option : kOptions) {
        QStringList names{QString::fromLatin1(option.name)};
        if (option.letter) names << QString{QChar::fromLatin1(option.letter)};
        parser.addOption({names, {}, QString::fromLatin1(option.value)});
    }
}

/// In one line, whatever the text holds.
std::string quoted(QString text) {
    for (QChar& letter : text)
        if (!letter.isPrint() && !letter.isSurrogate()) letter = u'?';
    return '\'' + text.toStdString() + '\'';
}

/// Why the parser has not taken the arguments.
std::string whyNotTaken(const QCommandLineParser& parser) {
    const QStringList unknown = parser.unknownOptionNames();
    if (!unknown.isEmpty()) return "unknown option " + quoted(unknown.first()) + "; see --help";
    return parser.errorText().toStdString() + " See --help.";
}

bool readSeed(const QCommandLineParser& parser, CommandLine& result) {
    const std::string text = parser.value(QStringLiteral("seed")).toStdString();
    std::uint64_t seed = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seed);
    result.seed = seed;
    return error == std::errc{} && end == text.data() + text.size();
}

bool readScale(const QCommandLineParser& parser, CommandLine& result) {
    result.scale = scaleOf(parser.value(QStringLiteral("scale")).toStdString());
    return result.scale.has_value();
}

std::optional<std::string> fileName(const QCommandLineParser& parser, const QString& option) {
    if (!parser.isSet(option)) return std::nullopt;
    return parser.value(option).toStdString();
}

CommandLine readOptions(const QCommandLineParser& parser) {
    CommandLine result;
    for (const Option& option : kOptions)
        if (option.chosen) result.*option.chosen = parser.isSet(QString::fromLatin1(option.name));
    if (parser.isSet(QStringLiteral("seed")) && !readSeed(parser, result))
        return refused("--seed needs a whole number from 0 up");
    if (parser.isSet(QStringLiteral("scale")) && !readScale(parser, result))
        return refused("--scale needs a whole number from 100 to 200");
    if (parser.isSet(QStringLiteral("data-dir")))
        result.dataDir = parser.value(QStringLiteral("data-dir")).toStdString();
    if (result.dataDir && result.dataDir->empty()) return refused("--data-dir needs a folder");
    if (result.userData && result.dataDir)
        return refused("--data-dir and --user-data exclude each other");
    result.record = fileName(parser, QStringLiteral("record"));
    result.replay = fileName(parser, QStringLiteral("replay"));
    if ((result.record && result.record->empty()) || (result.replay && result.replay->empty()))
        return refused("--record and --replay need a file");
    if (result.replay && (result.record || result.seed || result.dataDir || result.userData))
        return refused("--replay goes with no other option than --plain");
    return result;
}

}  // namespace

CommandLine parseCommandLine(std::span<const std::string_view> arguments) {
    QStringList texts{QStringLiteral("skylob")};
    for (const std::string_view argument : arguments) {
        const auto text = readBytes(argument);
        if (!text) return refused("an argument is not in UTF-8");
        texts << *text;
    }
    QCommandLineParser parser;
    declareOptions(parser);
    if (!parser.parse(texts)) return refused(whyNotTaken(parser));
    if (const QStringList others = parser.positionalArguments(); !others.isEmpty())
        return refused("unknown argument " + quoted(others.first()) + "; see --help");
    if (parser.isSet(QStringLiteral("help"))) return asked(CommandLine::Request::Help);
    if (parser.isSet(QStringLiteral("version"))) return asked(CommandLine::Request::Version);
    return readOptions(parser);
}

std::string commandLineHelp() {
    std::string text =
        "Usage: skylob [OPTION]...\n"
        "Skylob, an artillery game for one computer and one or two people.\n"
        "\n";
    for (const Option& option : kOptions) text += helpOn(option);
    return text + kFiles;
}

}  // namespace skylob
