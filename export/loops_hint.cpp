// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "export/loops_text.h"
#include "ui_MainWindow.h"

namespace {

QString problemText(LoopsTextProblem problem) {
    switch (problem) {
    case LoopsTextProblem::None:
        break;
    case LoopsTextProblem::NotNumber:
        return qtTrId("IDD_LOOPS_NOT_NUMBER");
    case LoopsTextProblem::Negative:
        return qtTrId("IDD_LOOPS_NEGATIVE");
    case LoopsTextProblem::TooLarge:
        return qtTrId("IDD_LOOPS_TOO_LARGE");
    }
    return {};
}

} // namespace

void AppDelegate::updateWebPLoopsHint() {
    const QString problem = problemText(loopsTextProblem(ui->txtWebPLoops->text()));
    ui->txtWebPLoops->setAccessibleDescription(problem);
    const QString hint = problem.isEmpty() ? qtTrId("IDD_WEBP_LOOPS_HINT") : problem;
    ui->labelWebPLoopsHint->setText(hint);
    ui->labelWebPLoopsHint->setToolTip(hint);
}
