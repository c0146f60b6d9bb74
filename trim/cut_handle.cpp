// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "trim/cut_handle.h"

#include "trim/view_cut_range.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <algorithm>

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
        switch (kind) {
        case QAccessible::Name:
            return name();
        case QAccessible::Value:
        case QAccessible::Description: // of a slider's value the bus knows the number alone
            return strip().textOf(handle().part());
        default:
            return {};
        }
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.focusable = true;
        state.focused = strip().hasFocus() && strip().chosenPart() == handle().part();
        state.disabled = !strip().isEnabled();
        state.invisible = !strip().isVisible();
        return state;
    }

    QRect rect() const override {
        const QRect area = strip().areaOf(handle().part());
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
        return static_cast<qulonglong>(strip().frameOf(handle().part()));
    }
    void setCurrentValue(const QVariant &value) override {
        const double frame = std::max(value.toDouble(), 0.0);
        strip().moveToFrame(handle().part(), static_cast<std::uint64_t>(
                                                 std::min(frame, static_cast<double>(frames()))));
    }
    QVariant maximumValue() const override {
        // A handle may be at the end, behind the last frame.
        const bool isPlayhead = handle().part() == StripPart::Playhead;
        return static_cast<qulonglong>(isPlayhead && frames() > 0 ? frames() - 1 : frames());
    }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

    QStringList actionNames() const override { return {increaseAction(), decreaseAction()}; }
    void doAction(const QString &name) override {
        const std::uint64_t frame = strip().frameOf(handle().part());
        if (name == increaseAction())
            strip().moveToFrame(handle().part(), frame + 1);
        else if (name == decreaseAction() && frame > 0)
            strip().moveToFrame(handle().part(), frame - 1);
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    QString name() const {
        switch (handle().part()) {
        case StripPart::Menor:
            return qtTrId("IDD_HANDLE_FIRST");
        case StripPart::Maior:
            return qtTrId("IDD_HANDLE_LAST");
        case StripPart::Playhead:
            break;
        }
        return qtTrId("IDD_PLAYHEAD");
    }
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
        return strip->hasFocus() ? child(static_cast<int>(strip->chosenPart())) : nullptr;
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

CutHandle::CutHandle(View_Cut_Range &strip, StripPart part)
    : QObject(&strip), strip_(strip), part_(part) {
    // Installing the same function again changes nothing.
    QAccessible::installFactory(makeInterface);
}

void CutHandle::announceValue() {
    QAccessibleValueChangeEvent event(this, static_cast<qulonglong>(strip_.frameOf(part_)));
    QAccessible::updateAccessibility(&event);
}

void CutHandle::announceFocus() {
    if (!strip_.hasFocus())
        return;
    QAccessibleEvent event(this, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}
