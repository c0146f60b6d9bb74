// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "app/application.h"
#include "app/single_instance.h"
#include "app/wishes.h"
#include "platform/display.h"
#include "platform/screen_source.h"
#include "script/command_line.h"
#include "script/scripted_recording.h"
#include "shell/edged_style.h"
#include "shell/strings_table.h"
#include "shell/termination_notice.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <variant>
#include <vector>

namespace {

constexpr qint64 longestAsking = 15000;     // milliseconds
constexpr unsigned long betweenClaims = 50; // milliseconds

/// Tools inherit the standard input; a terminal there would stop them for reading from it in the
/// background, or feed them keys that were meant for the shell.
void detachStandardInput() {
    const int nothing = open("/dev/null", O_RDONLY | O_CLOEXEC);
    if (nothing < 0)
        return;
    dup2(nothing, STDIN_FILENO);
    if (nothing != STDIN_FILENO)
        close(nothing);
}

/// The command line with a name for our windows in front (the first part of WM_CLASS), by which
/// panels find the launcher. The second part is the application's name, which screen readers say.
struct WindowName {
    WindowName(int count, char **arguments) : argv(arguments, arguments + count) {
        argv.insert(argv.begin() + (count > 0 ? 1 : 0), {option, id});
        argc = static_cast<int>(argv.size());
        argv.push_back(nullptr);
    }

    char option[6] = "-name";
    char id[sizeof TOVAREL_APP_ID] = TOVAREL_APP_ID;
    std::vector<char *> argv;
    int argc = 0; // The toolkit keeps a reference.
};

/// Where the working folders are made: in the sandbox's own data folder where the program runs as a
/// Flatpak, which cannot see the documents of others.
QString parentOfWorkingFolders() {
    const bool isFlatpak = QFileInfo::exists(QStringLiteral("/.flatpak-info"));
    return QStandardPaths::writableLocation(isFlatpak ? QStandardPaths::GenericDataLocation
                                                      : QStandardPaths::DocumentsLocation);
}

/// Whether this process is the only one. If not, the first one has come forward, or keeps us
/// waiting for too long: one that does not answer may be on its way out, its lock not yet given
/// back.
bool isOrBecomesFirst(SingleInstance &instance) {
    QElapsedTimer asking;
    asking.start();
    while (!instance.isFirst() && !instance.askFirstToComeForward()) {
        if (asking.hasExpired(longestAsking))
            return false;
        QThread::msleep(betweenClaims);
        instance.claim();
    }
    return instance.isFirst();
}

void nameApplication() {
    QCoreApplication::setApplicationName(QStringLiteral("Tovarel"));
    QCoreApplication::setOrganizationName(QStringLiteral("Tovarel"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TOVAREL_VERSION));
}

/// Chinese and Japanese share characters, and each has its own forms and marks of them. Fonts are
/// found by the locale, which need not be that of our texts: with LANGUAGE it is another.
void findFontsForTexts() {
    const char *language = "FC_LANG"; // fontconfig's
    const QString chosen = strings_table::chosen();
    const bool sharesCharacters = chosen == QLatin1String("ja") || chosen == QLatin1String("zh-CN");
    if (sharesCharacters && !qEnvironmentVariableIsSet(language))
        qputenv(language, chosen.toLower().toLatin1());
}

QString runtimeFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
}

void complain(const QString &text) {
    std::fputs(qPrintable(QStringLiteral("tovarel: ") + text + QLatin1Char('\n')), stderr);
}

QString whyNot(WishAnswer answer) {
    switch (answer) {
    case WishAnswer::NotRecording:
        return qtTrId("IDD_CLI_NOT_RECORDING");
    case WishAnswer::Saving:
        return qtTrId("IDD_CLI_SAVING");
    case WishAnswer::Asking:
        return qtTrId("IDD_CLI_ASKING");
    case WishAnswer::Done:
    case WishAnswer::Refused:
        break;
    }
    return qtTrId("IDD_CLI_NOT_NOW");
}

int tellRunning(const QString &wish) {
    const std::optional<WishAnswer> answer = SingleInstance::tell(runtimeFolder(), wish);
    if (answer == WishAnswer::Done)
        return command_line::done;
    complain(answer ? whyNot(*answer) : qtTrId("IDD_CLI_NOBODY"));
    return command_line::cannotRecord;
}

/// What is asked for on the command line. The program ends here with what needs no display.
command_line::Command readCommandLine(int argc, char **argv) {
    if (argc <= 1)
        return command_line::ShowWindow{};
    // The texts and the socket need an application object; the real one needs a display.
    char name[] = "tovarel";
    char *only[] = {name, nullptr};
    int one = 1;
    const QCoreApplication texts(one, only);
    nameApplication();
    strings_table::install();
    QStringList arguments;
    for (int at = 0; at < argc; ++at)
        arguments << QString::fromLocal8Bit(argv[at]);
    command_line::Command command =
        command_line::read(arguments, QCoreApplication::applicationVersion());
    if (const auto *say = std::get_if<command_line::Say>(&command)) {
        std::fputs(qPrintable(say->text), stdout);
        std::exit(command_line::done);
    }
    if (const auto *mistake = std::get_if<command_line::Mistake>(&command)) {
        complain(mistake->text);
        complain(qtTrId("IDD_CLI_SEE_HELP"));
        std::exit(command_line::wrongUse);
    }
    if (const auto *tell = std::get_if<command_line::Tell>(&command))
        std::exit(tellRunning(tell->wish));
    return command;
}

/// For what the toolkit does when the display goes: it ends the process with exit().
AppDelegate *running = nullptr;

int recordWithoutWindow(const command_line::Recording &wanted) {
    ScriptedRecording recording(wanted, makeScreenSource());
    const TerminationNotice notice([&recording] { recording.interrupt(); });
    return recording.run();
}

} // namespace

int main(int argc, char **argv) {
    const command_line::Command command = readCommandLine(argc, argv);
    const auto *scripted = std::get_if<command_line::Recording>(&command);
    detachStandardInput();
    if (!displayIsReachable()) {
        std::fputs("Tovarel needs a desktop: no display can be reached (is DISPLAY set?).\n",
                   stderr);
        return scripted ? command_line::cannotRecord : EXIT_FAILURE;
    }
    findFontsForTexts();
    WindowName name(argc, argv);
    Application application(name.argc, name.argv.data());
    nameApplication();
    Application::setDesktopFileName(QStringLiteral(TOVAREL_APP_ID));
    if (scripted) {
        strings_table::install();
        return recordWithoutWindow(*scripted);
    }

    SingleInstance instance(runtimeFolder());
    if (!isOrBecomesFirst(instance))
        return EXIT_SUCCESS;

    strings_table::install();
    EdgedStyle::replaceFusion();
    AppDelegate delegate(
        {.source = makeScreenSource(), .documentsFolder = parentOfWorkingFolders()});
    application.setDelegate(&delegate);
    application.installEventFilter(&delegate);
    const TerminationNotice notice([&delegate] { delegate.applicationWillTerminate(); });
    delegate.awakeFromNib();
    if (!delegate.applicationDidFinishLaunching())
        return EXIT_SUCCESS;
    running = &delegate;
    std::atexit([] {
        running->keepWhatRuns();
        // The toolkit would take its objects apart now, while nested event loops still use them.
        std::_Exit(EXIT_FAILURE);
    });
    delegate.listenToDesktopKeys();
    instance.listen([&delegate](const QString &wish) { return fulfil(wish, delegate); });
    Application::exec();
    delegate.Terminate_App();
}
