// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/alerts.h"

#include "shell/message_box.h"
#include "shell/mnemonics.h"
#include "shell/shell_fields.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>

#include <utility>

namespace {

constexpr int alertTextWidth = 400; // points

const QString closeTitle = QStringLiteral("Close");

/// One more text above the buttons; to be called last, since the box rearranges itself with what
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

} // namespace

void Alerts::run(AlertKind kind, const QString &informativeText, const QString &detail) {
    if (teller_) {
        teller_(kind, informativeText);
        return;
    }
    const bool error = kind == AlertKind::Error;
    QMessageBox alert(shell_.window());
    alert.setObjectName(QStringLiteral("alert"));
    alert.setWindowTitle(shell_.s_App_Name());
    alert.setIcon(error ? QMessageBox::Warning : QMessageBox::Information);
    setPlainTexts(alert, error ? QStringLiteral("Error") : QStringLiteral("Success"),
                  informativeText);
    alert.setWindowModality(Qt::ApplicationModal);
    alert.setDefaultButton(alert.addButton(closeTitle, QMessageBox::AcceptRole));
    if (auto *grid = qobject_cast<QGridLayout *>(alert.layout())) {
        if (!detail.isEmpty())
            addDetail(alert, *grid, detail);
        widen(*grid);
    }
    alert.exec();
}

void Alerts::ask(const Question &question, std::function<void(Answer)> answered) {
    // It returns at once: assistive technology that pressed a button waits for the answer to that.
    auto *box = new QMessageBox(shell_.window());
    box->setObjectName(QStringLiteral("question"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(shell_.s_App_Name());
    box->setIcon(QMessageBox::Question);
    setPlainTexts(*box, question.message, question.detail);
    box->setWindowModality(Qt::ApplicationModal);
    QPushButton *accept = box->addButton(question.accept, QMessageBox::AcceptRole);
    QPushButton *destroy = question.destroy.isEmpty()
                               ? nullptr
                               : box->addButton(question.destroy, QMessageBox::DestructiveRole);
    QPushButton *cancel = question.cancel.isEmpty()
                              ? accept
                              : box->addButton(question.cancel, QMessageBox::RejectRole);
    box->setDefaultButton(accept);
    box->setEscapeButton(cancel);
    mnemonics::mark(*box);
    if (auto *grid = qobject_cast<QGridLayout *>(box->layout()))
        widen(*grid);
    connect(box, &QDialog::finished, this, [=, this, answered = std::move(answered)] {
        const QAbstractButton *clicked = box->clickedButton();
        const Answer answer = clicked == accept               ? Answer::Accept
                              : destroy && clicked == destroy ? Answer::Destroy
                                                              : Answer::Cancel;
        question_ = nullptr;
        const auto tell = [=] { answered(answer); };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    });
    question_ = box;
    box->show();
}
