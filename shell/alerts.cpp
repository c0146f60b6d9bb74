// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "shell/mnemonics.h"
#include "shell/question.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>

namespace {

constexpr int alertTextWidth = 400; // points
constexpr int aboutIconSide = 64;   // points

const QString licence = QStringLiteral("MIT");
const QString closeTitle = QStringLiteral("Close");

/// Paths and the words of tools come into these texts: they are shown, never interpreted, and can
/// be copied.
void setTexts(QMessageBox &box, const QString &message, const QString &informative) {
    box.setTextFormat(Qt::PlainText);
    box.setText(message);
    box.setInformativeText(informative);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    if (auto *label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"))) {
        QFont bold = label->font();
        bold.setBold(true);
        label->setFont(bold);
    }
}

/// One more text above the buttons; to be called last, since the box arranges itself anew with what
/// it knows.
void addDetail(QMessageBox &box, QGridLayout &grid, const QString &text) {
    auto *buttons = box.findChild<QDialogButtonBox *>();
    if (!buttons)
        return;
    auto *detail = new QLabel(text, &box);
    detail->setObjectName(QStringLiteral("alertDetail"));
    detail->setTextFormat(Qt::PlainText);
    detail->setWordWrap(true);
    detail->setTextInteractionFlags(box.textInteractionFlags());
    grid.removeWidget(buttons);
    grid.addWidget(detail, grid.rowCount(), grid.columnCount() - 1);
    grid.addWidget(buttons, grid.rowCount(), 0, 1, grid.columnCount());
}

/// Without it the box is as narrow as its title, and a sentence becomes a column of words.
void widen(QGridLayout &grid) {
    grid.addItem(new QSpacerItem(alertTextWidth, 0), grid.rowCount(), 0, 1, grid.columnCount());
}

/// Which tool serves, or that none was found: the first thing to know when an export fails.
QString toolLine(const QString &name, const QString &path) {
    return QStringLiteral("%1: %2").arg(name,
                                        path.isEmpty() ? qtTrId("IDD_ABOUT_TOOL_MISSING") : path);
}

} // namespace

void AppDelegate::RunAlert(const QString &messageText, const QString &informativeText,
                           const QString &detail) {
    QMessageBox alert(shell.window());
    alert.setObjectName(QStringLiteral("alert"));
    alert.setWindowTitle(shell.s_App_Name());
    alert.setIcon(messageText == QLatin1String("Error") ? QMessageBox::Warning
                                                        : QMessageBox::Information);
    setTexts(alert, messageText, informativeText);
    alert.setWindowModality(Qt::ApplicationModal);
    alert.setDefaultButton(alert.addButton(closeTitle, QMessageBox::AcceptRole));
    if (auto *grid = qobject_cast<QGridLayout *>(alert.layout())) {
        if (!detail.isEmpty())
            addDetail(alert, *grid, detail);
        widen(*grid);
    }
    alert.exec();
}

void AppDelegate::Ask(const Question &question, std::function<void(Answer)> answered) {
    // It returns at once: assistive technology that pressed a button waits for the answer to that.
    auto *box = new QMessageBox(shell.window());
    box->setObjectName(QStringLiteral("question"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(shell.s_App_Name());
    box->setIcon(QMessageBox::Question);
    setTexts(*box, question.message, question.detail);
    box->setWindowModality(Qt::ApplicationModal);
    QPushButton *accept = box->addButton(question.accept, QMessageBox::AcceptRole);
    QPushButton *destroy = box->addButton(question.destroy, QMessageBox::DestructiveRole);
    QPushButton *cancel = question.cancel.isEmpty()
                              ? accept
                              : box->addButton(question.cancel, QMessageBox::RejectRole);
    box->setDefaultButton(accept);
    box->setEscapeButton(cancel);
    mnemonics::mark(*box);
    if (auto *grid = qobject_cast<QGridLayout *>(box->layout()))
        widen(*grid);
    connect(box, &QDialog::finished, this, [=, this] {
        const QAbstractButton *clicked = box->clickedButton();
        const Answer answer = clicked == destroy  ? Answer::Destroy
                              : clicked == accept ? Answer::Accept
                                                  : Answer::Cancel;
        question_ = nullptr;
        QMetaObject::invokeMethod(
            this, [=] { answered(answer); }, Qt::QueuedConnection);
    });
    question_ = box;
    box->show();
}

void AppDelegate::OnMenuAbout() {
    const QStringList lines = {
        qtTrId("IDD_ABOUT_VERSION").arg(QCoreApplication::applicationVersion()),
        qtTrId("IDD_ABOUT_TEXT"),
        qtTrId("IDD_ABOUT_LICENCE").arg(licence),
        {},
        qtTrId("IDD_ABOUT_TOOLS"),
        toolLine(QStringLiteral("ffmpeg"), shell.sffmpegPath()),
        toolLine(QStringLiteral("img2webp"), shell.simg2webpPath()),
    };
    QMessageBox about(shell.window());
    about.setObjectName(QStringLiteral("about"));
    about.setWindowTitle(texts.s_IDD_ABOUT() + QLatin1Char(' ') + shell.s_App_Name());
    about.setIconPixmap(QApplication::windowIcon().pixmap(QSize(aboutIconSide, aboutIconSide),
                                                          shell.window()->devicePixelRatio()));
    setTexts(about, shell.s_App_Name(), lines.join(QLatin1Char('\n')));
    about.addButton(closeTitle, QMessageBox::RejectRole);
    about.exec();
}
