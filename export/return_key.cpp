// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/return_key.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace {

bool isReturn(const QEvent &event) {
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto &key = static_cast<const QKeyEvent &>(event);
    const Qt::KeyboardModifiers others = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) &&
           !(key.modifiers() & others);
}

} // namespace

ReturnKey::ReturnKey(QWidget &page, QObject *parent) : QObject(parent), page_(page) {
    // What nobody on the way uses comes to the window in the end, from the tabs as well.
    page_.window()->installEventFilter(this);
}

void ReturnKey::addField(QLineEdit &field, Apply apply) {
    field.installEventFilter(this);
    fields_.push_back({&field, &field, std::move(apply)});
}

void ReturnKey::addField(QComboBox &field, Apply apply) {
    addField(*field.lineEdit(), apply);
    field.installEventFilter(this);
    fields_.push_back({&field, field.lineEdit(), std::move(apply)});
}

bool ReturnKey::eventFilter(QObject *watched, QEvent *event) {
    if (!isReturn(*event))
        return false;
    return watched == page_.window() ? page_.isVisible() && press() : applyEdit(*watched);
}

bool ReturnKey::applyEdit(const QObject &focus) {
    const auto field = std::ranges::find(fields_, &focus, &Field::focus);
    if (field == fields_.end() || !field->edit->isModified())
        return false;
    field->edit->setModified(false);
    field->apply();
    field->edit->selectAll();
    return true;
}

bool ReturnKey::press() {
    QWidget *focus = QApplication::focusWidget();
    auto *button = qobject_cast<QAbstractButton *>(focus);
    if (!qobject_cast<QPushButton *>(focus) && !qobject_cast<QToolButton *>(focus)) {
        const auto all = page_.findChildren<QPushButton *>();
        const auto isDefault = [](const QPushButton *each) { return each->isDefault(); };
        const auto found = std::ranges::find_if(all, isDefault);
        button = found == all.end() ? nullptr : *found;
    }
    if (!button || !button->isEnabled() || !button->isVisible())
        return false;
    button->click();
    return true;
}
