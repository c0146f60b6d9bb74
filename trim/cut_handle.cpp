// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "trim/cut_handle.h"

#include "trim/view_cut_range.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <algorithm>

using range_rules::Handle;

namespace {

class AccessibleHandle : public QAccessibleObject,
                         public QAccessibleValueInterface,
                         public QAccessibleActionInterface {
public:
    explicit AccessibleHandle(CutHandle *handle) : QAccessibleObject(handle) {}

    QAccessibleInterface *parent() const override {
        return QAccessible::queryAccessibleInterface(&strip());
    }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Slider; }

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name)
            return handle().handle() == Handle::Menor ? qtTrId("IDD_HANDLE_FIRST")
                                                      : qtTrId("IDD_HANDLE_LAST");
        if (kind == QAccessible::Value)
            return currentValue().toString();
        return {};
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.focusable = true;
        state.focused = strip().hasFocus() && strip().chosenHandle() == handle().handle();
        state.disabled = !strip().isEnabled();
        state.invisible = !strip().isVisible();
        return state;
    }

    QRect rect() const override {
        const QRect area = strip().handleArea(handle().handle());
        return {strip().mapToGlobal(area.topLeft()), area.size()};
    }

    void *interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        if (type == QAccessible::ActionInterface)
            return static_cast<QAccessibleActionInterface *>(this);
        return nullptr;
    }

    QVariant currentValue() const override {
        return static_cast<qulonglong>(strip().frameOf(handle().handle()));
    }
    void setCurrentValue(const QVariant &value) override {
        const double frame = std::max(value.toDouble(), 0.0);
        strip().moveToFrame(handle().handle(), static_cast<std::uint64_t>(
                                                   std::min(frame, static_cast<double>(frames()))));
    }
    QVariant maximumValue() const override { return static_cast<qulonglong>(frames()); }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

    QStringList actionNames() const override { return {increaseAction(), decreaseAction()}; }
    void doAction(const QString &name) override {
        const std::uint64_t frame = strip().frameOf(handle().handle());
        if (name == increaseAction())
            strip().moveToFrame(handle().handle(), frame + 1);
        else if (name == decreaseAction() && frame > 0)
            strip().moveToFrame(handle().handle(), frame - 1);
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    CutHandle &handle() const { return *static_cast<CutHandle *>(object()); }
    View_Cut_Range &strip() const { return handle().strip(); }
    std::uint64_t frames() const { return strip().frameCount(); }
};

class AccessibleStrip : public QAccessibleWidget {
public:
    explicit AccessibleStrip(QWidget *strip) : QAccessibleWidget(strip, QAccessible::Grouping) {}

    int childCount() const override { return static_cast<int>(handles().size()); }
    QAccessibleInterface *child(int index) const override {
        return QAccessible::queryAccessibleInterface(handles().value(index));
    }
    int indexOfChild(const QAccessibleInterface *child) const override {
        return static_cast<int>(handles().indexOf(qobject_cast<CutHandle *>(child->object())));
    }
    QAccessibleInterface *focusChild() const override {
        const auto *strip = static_cast<View_Cut_Range *>(widget());
        return strip->hasFocus() ? child(strip->chosenHandle() == Handle::Menor ? 0 : 1) : nullptr;
    }

private:
    QList<CutHandle *> handles() const {
        return widget()->findChildren<CutHandle *>(Qt::FindDirectChildrenOnly);
    }
};

QAccessibleInterface *makeInterface(const QString &, QObject *object) {
    if (auto *handle = qobject_cast<CutHandle *>(object))
        return new AccessibleHandle(handle);
    if (auto *strip = qobject_cast<View_Cut_Range *>(object))
        return new AccessibleStrip(strip);
    return nullptr;
}

} // namespace

CutHandle::CutHandle(View_Cut_Range &strip, Handle handle)
    : QObject(&strip), strip_(strip), handle_(handle) {
    // Installing the same function again changes nothing.
    QAccessible::installFactory(makeInterface);
}

void CutHandle::announceValue() {
    QAccessibleValueChangeEvent event(this, static_cast<qulonglong>(strip_.frameOf(handle_)));
    QAccessible::updateAccessibility(&event);
}

void CutHandle::announceFocus() {
    if (!strip_.hasFocus())
        return;
    QAccessibleEvent event(this, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}
