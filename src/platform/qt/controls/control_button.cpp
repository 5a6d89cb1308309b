// Push, radio, check and group boxes.
#include <QtGui/QPainter>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <algorithm>

#include "platform/dialogs.h"
#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/controls/control.h"
#include "platform/qt/look/colors.h"
#include "platform/qt/surface/drawing_objects.h"

namespace {

// A push button whose face has the colour that the dialog wants for it.
class ButtonWidget : public QPushButton {
public:
    ButtonWidget(QWidget* parent, Control* its) : QPushButton(parent), control(its) {
        // The Enter key presses the button that has the focus.
        setAutoDefault(true);
    }

    void BeDefault(bool always) {
        isDefaultAlways = always;
        setDefault(always);
    }

protected:
    // The toolkit makes the button with the focus the default one, and none when it leaves.
    void focusOutEvent(QFocusEvent* event) override {
        QPushButton::focusOutEvent(event);
        setDefault(isDefaultAlways);
    }
    void paintEvent(QPaintEvent* event) override {
        HGDIOBJ brush = control->BrushFor(WM_CTLCOLORBTN);
        if (brush == nullptr || !text().isEmpty()) {
            QPushButton::paintEvent(event);
            return;
        }
        QPainter painter(this);
        const int line = std::max(1, qRound(ScreenMagnification()));
        painter.fillRect(rect(), hasFocus() || underMouse() ? titleBarColor : inkColor);
        painter.fillRect(rect().adjusted(line, line, -line, -line), Qt::white);
        painter.fillRect(rect().adjusted(2 * line, 2 * line, -2 * line, -2 * line),
                         QColor(brush->color));
    }

private:
    Control* control;
    bool isDefaultAlways = false;
};

struct Button : Control {
    Button(HWND owner, const ControlResource& described, QAbstractButton* button)
        : Control(owner, described) {
        button->setText(QString::fromUtf16(described.text));
        QObject::connect(button, &QAbstractButton::clicked, button, [this] { Notify(BN_CLICKED); });
        Show(button);
    }

    QAbstractButton* Widget() const {
        return static_cast<QAbstractButton*>(widget.data());
    }
    QString Text() const override {
        return Widget()->text();
    }
    void SetText(const QString& text) override {
        Widget()->setText(text);
    }

    void Place() override {
        Control::Place();
        if (Widget()->isCheckable()) {
            widget->resize(std::max(widget->width(), widget->sizeHint().width()),
                           std::max(widget->height(), widget->sizeHint().height()));
        }
    }

    LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == BM_SETCHECK) {
            SetChecked(wParam == BST_CHECKED);
            return 0;
        }
        if (message == BM_GETCHECK) {
            return Widget()->isChecked() ? BST_CHECKED : BST_UNCHECKED;
        }
        return Control::Answer(message, wParam, lParam);
    }

    // A group of radio buttons lets none of them go; the program may want none selected.
    void SetChecked(bool checked) {
        const bool exclusive = Widget()->autoExclusive();
        Widget()->setAutoExclusive(exclusive && checked);
        Widget()->setChecked(checked);
        Widget()->setAutoExclusive(exclusive);
    }
};

struct PushButton : Button {
    PushButton(HWND owner, const ControlResource& described, QWidget* parent)
        : Button(owner, described, new ButtonWidget(parent, this)) {
        auto* button = static_cast<ButtonWidget*>(Widget());
        button->BeDefault(described.kind == ControlKind::DefaultButton);
    }
};

struct GroupBox : Control {
    GroupBox(HWND owner, const ControlResource& described, QWidget* parent)
        : Control(owner, described) {
        auto* box = new QGroupBox(parent);
        box->setTitle(QString::fromUtf16(described.text));
        Show(box);
    }

    QString Text() const override {
        return static_cast<QGroupBox*>(widget.data())->title();
    }
    void SetText(const QString& text) override {
        static_cast<QGroupBox*>(widget.data())->setTitle(text);
    }
};

}  // namespace

std::unique_ptr<Control> MakeButton(HWND dialog, const ControlResource& resource, QWidget* parent) {
    switch (resource.kind) {
        case ControlKind::RadioButton:
            return std::make_unique<Button>(dialog, resource, new QRadioButton(parent));
        case ControlKind::CheckBox:
            return std::make_unique<Button>(dialog, resource, new QCheckBox(parent));
        case ControlKind::GroupBox: return std::make_unique<GroupBox>(dialog, resource, parent);
        default: return std::make_unique<PushButton>(dialog, resource, parent);
    }
}
