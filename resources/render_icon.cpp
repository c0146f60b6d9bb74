// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT

// Draws an SVG file into a square PNG file: render_icon IN.svg SIDE OUT.png. Part of the build, so
// that the application icon has one source and no picture of it is kept.

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdlib>

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int side = arguments.value(2).toInt();
    QSvgRenderer drawing(arguments.value(1));
    const QString target = arguments.value(3);
    if (!drawing.isValid() || side <= 0 || target.isEmpty()) {
        qWarning("usage: render_icon IN.svg SIDE OUT.png");
        return EXIT_FAILURE;
    }
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter);
    painter.end();
    if (!QDir().mkpath(QFileInfo(target).path()) || !picture.save(target, "PNG")) {
        qWarning("%s cannot be written", qUtf8Printable(target));
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
