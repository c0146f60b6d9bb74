// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>
#include <vector>

class QComboBox;
class QLineEdit;
class QPushButton;
class QWidget;

/// What Return does on a page of the window, as in a dialog: in a field that was edited it applies
/// the edit, on a button it presses that, and anywhere else the page's default button.
class ReturnKey : public QObject {
    Q_OBJECT

public:
    /// `page` lies in its window by now; it is borrowed, as the fields are.
    ReturnKey(QWidget &page, QObject *parent);

    using Apply = std::function<void()>;
    /// `apply` acts on what is typed there.
    void addField(QLineEdit &field, Apply apply);
    /// Likewise of a list in which one can type.
    void addField(QComboBox &field, Apply apply);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Field {
        QObject *focus; ///< That gets the keys.
        QLineEdit *edit;
        Apply apply;
    };
    /// Whether there was an edit to be applied.
    bool applyEdit(const QObject &focus);
    bool press();

    QWidget &page_;
    std::vector<Field> fields_;
};
