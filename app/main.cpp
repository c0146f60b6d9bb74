// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "app/application.h"
#include "app/single_instance.h"
#include "platform/display.h"
#include "platform/window_activation.h"
#include "platform/window_server.h"
#include "shell/strings_table.h"
#include "shell/termination_notice.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QMainWindow>
#include <QStandardPaths>
#include <QThread>

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
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

void bringForward(QWidget &window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    bringToFront(window.winId());
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

} // namespace

int main(int argc, char **argv) {
    detachStandardInput();
    if (!displayIsReachable()) {
        std::fputs("Tovarel needs a desktop: no display can be reached (is DISPLAY set?).\n",
                   stderr);
        return EXIT_FAILURE;
    }
    WindowName name(argc, argv);
    Application application(name.argc, name.argv.data());
    Application::setApplicationName(QStringLiteral("Tovarel"));
    Application::setOrganizationName(QStringLiteral("Tovarel"));
    Application::setApplicationVersion(QStringLiteral(TOVAREL_VERSION));
    Application::setDesktopFileName(QStringLiteral(TOVAREL_APP_ID));

    SingleInstance instance(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
    if (!isOrBecomesFirst(instance))
        return EXIT_SUCCESS;

    strings_table::install();
    AppDelegate delegate(
        {.windowServer = makeWindowServer(), .documentsFolder = parentOfWorkingFolders()});
    application.setDelegate(&delegate);
    application.installEventFilter(&delegate);
    const TerminationNotice notice([&delegate] { delegate.applicationWillTerminate(); });
    delegate.awakeFromNib();
    if (!delegate.applicationDidFinishLaunching())
        return EXIT_SUCCESS;
    delegate.listenToDesktopKeys();
    instance.listen([&delegate] { bringForward(*delegate.shell.window()); });
    Application::exec();
    delegate.Terminate_App();
}
