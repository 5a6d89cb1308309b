// Edit boxes of one line.
#include <QtGui/QFocusEvent>
#include <QtWidgets/QLineEdit>

#include "platform/qt/controls/control.h"

namespace {

// Tells when the player comes to it and leaves it. Another window of the desktop, or a menu of its
// own, is no leaving.
class EditWidget : public QLineEdit {
public:
    EditWidget(QWidget* parent, Control* its) : QLineEdit(parent), control(its) {
    }

protected:
    void focusInEvent(QFocusEvent* event) override {
        QLineEdit::focusInEvent(event);
        if (IsOfTheDialog(event)) {
            control->Notify(EN_SETFOCUS);
        }
    }

    void focusOutEvent(QFocusEvent* event) override {
        QLineEdit::focusOutEvent(event);
        if (IsOfTheDialog(event)) {
            control->Notify(EN_KILLFOCUS);
        }
    }

private:
    static bool IsOfTheDialog(const QFocusEvent* event) {
        return event->reason() != Qt::ActiveWindowFocusReason &&
               event->reason() != Qt::PopupFocusReason;
    }

    Control* control;
};

struct EditBox : Control {
    EditBox(HWND owner, const ControlResource& described, QWidget* parent)
        : Control(owner, described) {
        Show(new EditWidget(parent, this));
    }

    QLineEdit* Edit() const {
        return static_cast<QLineEdit*>(widget.data());
    }
    QString Text() const override {
        return Edit()->text();
    }
    void SetText(const QString& text) override {
        Edit()->setText(text);
    }
};

}  // namespace

std::unique_ptr<Control> MakeEditBox(HWND dialog, const ControlResource& resource,
                                     QWidget* parent) {
    return std::make_unique<EditBox>(dialog, resource, parent);
}
