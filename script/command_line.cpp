// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "script/command_line.h"

#include "record/rates.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QRegularExpression>

#include <array>

namespace command_line {

namespace {

constexpr std::uint64_t defaultRate = 15; // frames per second: smooth enough for what people do
constexpr double longest = 3600;          // seconds
constexpr double shortest = 0.1;          // seconds
constexpr double fewestFrames = 3;        // fewer are no moving picture

const QString recordWord = QStringLiteral("record");
const QString everyMonitor = QStringLiteral("--screen=0");

/// The toolkit takes these out of the command line itself, each with one dash or two.
constexpr std::array toolkitOptions{"display",
                                    "geometry",
                                    "name",
                                    "platform",
                                    "platformpluginpath",
                                    "platformtheme",
                                    "plugin",
                                    "qwindowgeometry",
                                    "qwindowicon",
                                    "qwindowtitle",
                                    "session",
                                    "style",
                                    "stylesheet",
                                    "title"};

QStringList withoutToolkitOptions(const QStringList &arguments) {
    static const QRegularExpression dashes(QStringLiteral("^--?"));
    QStringList rest;
    for (qsizetype at = 0; at < arguments.size(); ++at) {
        QString name = arguments[at];
        const bool isOption = at > 0 && name.startsWith(QLatin1Char('-'));
        name.remove(dashes);
        const bool hasValue = name.contains(QLatin1Char('='));
        name = name.section(QLatin1Char('='), 0, 0);
        const bool isToolkits =
            isOption && std::ranges::any_of(toolkitOptions, [&name](const char *option) {
                return name == QLatin1String(option);
            });
        if (!isToolkits && !(isOption && name == QLatin1String("reverse")))
            rest << arguments[at];
        else if (isToolkits && !hasValue)
            ++at;
    }
    return rest;
}

/// The parser knows no option whose value may be missing: `--screen` without a number gets one.
QStringList withEveryMonitor(const QStringList &arguments) {
    static const QRegularExpression number(QStringLiteral("^\\d+$"));
    QStringList all;
    for (qsizetype at = 0; at < arguments.size(); ++at) {
        if (arguments[at] != QLatin1String("--screen"))
            all << arguments[at];
        else if (at + 1 < arguments.size() && number.match(arguments[at + 1]).hasMatch())
            all << QStringLiteral("--screen=") + arguments[++at];
        else
            all << everyMonitor;
    }
    return all;
}

const QCommandLineOption helpOption(QStringList{QStringLiteral("h"), QStringLiteral("help")});
const QCommandLineOption versionOption(QStringList{QStringLiteral("v"), QStringLiteral("version")});

QCommandLineOption described(QCommandLineOption option, const char *key) {
    option.setDescription(qtTrId(key));
    return option;
}

QCommandLineOption option(const char *name, const char *value, const char *key) {
    return QCommandLineOption(QString::fromLatin1(name), qtTrId(key), QString::fromLatin1(value));
}

/// A plain number in that range, of which the end is part; none otherwise. In no locale.
std::optional<double> numberIn(const QString &text, double least, double most) {
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    // Also refuses what is not a number.
    return isNumber && number >= least && number <= most ? std::optional(number) : std::nullopt;
}

Mistake noNumber(const char *name, double least, double most) {
    return {qtTrId("IDD_CLI_NOT_NUMBER")
                .arg(QString::fromLatin1(name), QString::number(least), QString::number(most))};
}

/// "640x480+100+80", as the window system has it.
std::optional<QRect> regionFrom(const QString &text) {
    static const QRegularExpression form(
        QStringLiteral("^(\\d{1,5})x(\\d{1,5})\\+(\\d{1,5})\\+(\\d{1,5})$"));
    const QRegularExpressionMatch match = form.match(text);
    const QRect region(match.captured(3).toInt(), match.captured(4).toInt(),
                       match.captured(1).toInt(), match.captured(2).toInt());
    return match.hasMatch() && !region.isEmpty() ? std::optional(region) : std::nullopt;
}

/// Takes what is recorded; what is wrong with it, or none.
std::optional<Mistake> takeTarget(const QCommandLineParser &parser, Recording &recording) {
    const QString region = QStringLiteral("region");
    const QString screen = QStringLiteral("screen");
    const QString window = QStringLiteral("window");
    const qsizetype named =
        parser.values(region).size() + parser.values(screen).size() + parser.values(window).size();
    if (named != 1)
        return Mistake{qtTrId("IDD_CLI_ONE_TARGET")};
    if (parser.isSet(region)) {
        recording.region = regionFrom(parser.value(region));
        if (!recording.region)
            return Mistake{qtTrId("IDD_CLI_NOT_REGION").arg(parser.value(region))};
    } else if (parser.isSet(screen)) {
        constexpr double most = 99;
        const std::optional<double> number = numberIn(parser.value(screen), 0, most);
        if (!number || *number != static_cast<int>(*number))
            return noNumber("--screen", 1, most);
        if (*number > 0)
            recording.monitor = static_cast<int>(*number);
    } else {
        recording.window = parser.value(window);
        if (recording.window->trimmed().isEmpty())
            return Mistake{qtTrId("IDD_CLI_ONE_TARGET")};
    }
    return std::nullopt;
}

std::optional<Mistake> takeTimes(const QCommandLineParser &parser, Recording &recording) {
    const auto given = [&parser](const char *name) {
        return parser.value(QString::fromLatin1(name));
    };
    if (!parser.isSet(QStringLiteral("seconds")))
        return Mistake{qtTrId("IDD_CLI_NEEDS_SECONDS")};
    const std::optional<double> seconds = numberIn(given("seconds"), shortest, longest);
    if (!seconds)
        return noNumber("--seconds", shortest, longest);
    recording.seconds = *seconds;
    recording.rate = defaultRate;
    if (parser.isSet(QStringLiteral("rate"))) {
        const std::optional<double> rate = numberIn(given("rate"), lowestRate, highestRate);
        if (!rate || *rate != static_cast<int>(*rate))
            return noNumber("--rate", lowestRate, highestRate);
        recording.rate = static_cast<std::uint64_t>(*rate);
    }
    if (parser.isSet(QStringLiteral("delay"))) {
        const std::optional<double> delay = numberIn(given("delay"), 0, longest);
        if (!delay)
            return noNumber("--delay", 0, longest);
        recording.delay = *delay;
    }
    if (recording.seconds * static_cast<double>(recording.rate) < fewestFrames)
        return Mistake{qtTrId("IDD_CLI_TOO_SHORT")};
    return std::nullopt;
}

/// Takes the file and its quality. Nothing is recorded that could not be written.
std::optional<Mistake> takeFile(const QCommandLineParser &parser, Recording &recording) {
    const QString quality = parser.value(QStringLiteral("quality"));
    if (parser.isSet(QStringLiteral("quality"))) {
        recording.preset = presetOfWord(quality);
        if (quality != QLatin1String(presetWord(recording.preset)))
            return Mistake{qtTrId("IDD_CLI_NOT_QUALITY").arg(quality)};
    }
    recording.force = parser.isSet(QStringLiteral("force"));
    recording.output = parser.value(QStringLiteral("o"));
    if (recording.output.isEmpty())
        return parser.isSet(QStringLiteral("o"))
                   ? std::optional(Mistake{qtTrId("IDD_CLI_NOT_FORMAT").arg(recording.output)})
                   : std::nullopt;
    const QFileInfo file(recording.output);
    const QString ending = file.suffix().toLower();
    if (ending == QLatin1String("webp"))
        recording.format = Format::WebP;
    else if (ending == QLatin1String("mp4"))
        recording.format = Format::MP4;
    else if (ending != QLatin1String("gif"))
        return Mistake{qtTrId("IDD_CLI_NOT_FORMAT").arg(recording.output)};
    if (file.isDir() || !QFileInfo(file.absolutePath()).isDir())
        return Mistake{qtTrId("IDD_CLI_NO_PLACE").arg(recording.output)};
    if (!recording.force && (file.exists() || file.isSymLink()))
        return Mistake{qtTrId("IDD_CLI_EXISTS").arg(recording.output)};
    return std::nullopt;
}

/// What follows the options; the commands are the same in every language.
QString examples() {
    return QLatin1Char('\n') + qtTrId("IDD_CLI_EXAMPLES") +
           QStringLiteral("\n  tovarel record --screen --seconds 5 -o demo.gif\n"
                          "  tovarel record --region 640x480+100+80 --seconds 5 -o demo.webp\n");
}

Command readRecording(const QStringList &arguments, const QString &versionText) {
    QCommandLineParser parser;
    parser.setApplicationDescription(qtTrId("IDD_CLI_RECORD_ABOUT"));
    parser.addPositionalArgument(recordWord, qtTrId("IDD_CLI_RECORD"), recordWord);
    parser.addOptions({
        option("region", "WxH+X+Y", "IDD_CLI_REGION"),
        option("screen", "N", "IDD_CLI_SCREEN"),
        option("window", "TITLE", "IDD_CLI_WINDOW"),
        option("seconds", "S", "IDD_CLI_SECONDS"),
        option("rate", "R", "IDD_CLI_RATE"),
        option("delay", "S", "IDD_CLI_DELAY"),
        option("quality", "Q", "IDD_CLI_QUALITY"),
        QCommandLineOption(QStringList{QStringLiteral("o"), QStringLiteral("output")},
                           qtTrId("IDD_CLI_OUTPUT"), QStringLiteral("FILE")),
        QCommandLineOption(QStringLiteral("force"), qtTrId("IDD_CLI_FORCE")),
        described(helpOption, "IDD_CLI_HELP"),
        described(versionOption, "IDD_CLI_VERSION"),
    });
    if (!parser.parse(withEveryMonitor(arguments)))
        return Mistake{parser.errorText()};
    if (parser.isSet(helpOption))
        return Say{parser.helpText() + examples()};
    if (parser.isSet(versionOption))
        return Say{versionText};
    if (parser.positionalArguments().size() > 1)
        return Mistake{qtTrId("IDD_CLI_UNKNOWN").arg(parser.positionalArguments().last())};
    Recording recording;
    for (const auto take : {takeTarget, takeTimes, takeFile})
        if (const std::optional<Mistake> mistake = take(parser, recording))
            return *mistake;
    return recording;
}

} // namespace

Command read(const QStringList &arguments, const QString &version) {
    const QStringList ours = withoutToolkitOptions(arguments);
    const QString versionText = QStringLiteral("tovarel %1\n").arg(version);
    if (ours.size() > 1 && ours[1] == recordWord)
        return readRecording(ours, versionText);
    QCommandLineParser parser;
    parser.setApplicationDescription(qtTrId("IDD_CLI_ABOUT"));
    parser.addPositionalArgument(recordWord, qtTrId("IDD_CLI_RECORD"),
                                 QLatin1Char('[') + recordWord + QLatin1String(" ...]"));
    const QCommandLineOption toggle(QStringLiteral("toggle"), qtTrId("IDD_CLI_TOGGLE"));
    const QCommandLineOption pause(QStringLiteral("pause"), qtTrId("IDD_CLI_PAUSE"));
    const QCommandLineOption stop(QStringLiteral("stop"), qtTrId("IDD_CLI_STOP"));
    parser.addOptions({toggle, pause, stop, described(helpOption, "IDD_CLI_HELP"),
                       described(versionOption, "IDD_CLI_VERSION")});
    if (!parser.parse(ours))
        return Mistake{parser.errorText()};
    if (parser.isSet(helpOption))
        return Say{parser.helpText() + examples()};
    if (parser.isSet(versionOption))
        return Say{versionText};
    if (!parser.positionalArguments().isEmpty())
        return Mistake{qtTrId("IDD_CLI_UNKNOWN").arg(parser.positionalArguments().first())};
    QStringList wishes;
    for (const QCommandLineOption &each : {toggle, pause, stop})
        if (parser.isSet(each))
            wishes << each.names().first();
    if (wishes.size() > 1)
        return Mistake{qtTrId("IDD_CLI_ONE_WISH")};
    if (wishes.isEmpty())
        return ShowWindow{};
    return Tell{wishes.first()};
}

} // namespace command_line
