// List boxes.
#include <QtWidgets/QScrollBar>
#include <algorithm>
#include <string>

#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/controls/control.h"
#include "platform/qt/controls/dialog_look.h"
#include "platform/qt/controls/list_widget.h"

namespace {

// Tall enough for a stylus. Logical pixels.
constexpr int rowHeight = 16;
constexpr int border = 1;

struct ListBox : Control {
    ListBox(HWND owner, const ControlResource& described, QWidget* parent)
        : Control(owner, described) {
        auto* list = new ListWidget(parent);
        QObject::connect(list, &ListWidget::Chosen, list, [this] { Notify(LBN_SELCHANGE); });
        Show(list);
    }

    ListWidget* List() const {
        return static_cast<ListWidget*>(widget.data());
    }

    void Place() override {
        Control::Place();
        const int row = qRound(rowHeight * ScreenMagnification());
        List()->SetMeasures(row, qRound(extent * ScreenMagnification()));
        // It ends with a whole line, so that none is cut.
        const int bar = extent == 0 ? 0 : List()->horizontalScrollBar()->sizeHint().height();
        widget->resize(widget->width(), 2 * List()->frameWidth() + bar + Rows() * row);
    }

    LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam) override {
        const auto* text = reinterpret_cast<const WCHAR*>(lParam);
        const auto line = static_cast<int>(wParam);
        switch (message) {
            case LB_ADDSTRING: return Add(text);
            case LB_DELETESTRING: return Delete(line);
            case LB_RESETCONTENT: Empty(); return 0;
            case LB_SETCURSEL: return Select(line);
            case LB_GETCURSEL: return List()->currentRow();
            case LB_GETTEXT: return CopyText(line, reinterpret_cast<WCHAR*>(lParam));
            case LB_GETTEXTLEN: return Exists(line) ? List()->item(line)->text().size() : LB_ERR;
            case LB_GETCOUNT: return List()->count();
            case LB_SETHORIZONTALEXTENT:
                extent = line;
                Place();
                return 0;
            case LB_FINDSTRINGEXACT: return Find(line, QString::fromUtf16(text));
            default: return Control::Answer(message, wParam, lParam);
        }
    }

    bool Exists(int line) const {
        return line >= 0 && line < List()->count();
    }

    // The tip shows what does not fit. Marked as rich text, for else the toolkit would guess.
    LRESULT Add(const WCHAR* text) {
        const QString line = QString::fromUtf16(text);
        auto* item = new QListWidgetItem(line, List());
        item->setToolTip("<span>" + line.toHtmlEscaped() + "</span>");
        return List()->count() - 1;
    }

    LRESULT Delete(int line) {
        if (!Exists(line)) {
            return LB_ERR;
        }
        // The line that moves up is not the one that the player had selected.
        List()->setCurrentRow(-1);
        delete List()->takeItem(line);
        return List()->count();
    }

    // The next content begins at its top, wherever the player was in this one.
    void Empty() {
        List()->clear();
        List()->horizontalScrollBar()->setValue(0);
        List()->verticalScrollBar()->setValue(0);
    }

    int Rows() const {
        const int around = 2 * border + (extent == 0 ? 0 : scrollBarExtent);
        return (frame.bottom - frame.top - around) / rowHeight;
    }

    LRESULT Select(int line) {
        List()->setCurrentRow(Exists(line) ? line : -1);
        return List()->currentRow();
    }

    LRESULT CopyText(int line, WCHAR* buffer) const {
        if (!Exists(line)) {
            return LB_ERR;
        }
        const std::u16string text = List()->item(line)->text().toStdU16String();
        buffer[text.copy(buffer, text.size())] = 0;
        return static_cast<LRESULT>(text.size());
    }

    LRESULT Find(int after, const QString& text) const {
        const int count = List()->count();
        for (int step = 1; step <= count; ++step) {
            const int line = (std::max(after, -1) + step) % count;
            if (List()->item(line)->text().compare(text, Qt::CaseInsensitive) == 0) {
                return line;
            }
        }
        return LB_ERR;
    }

    int extent = 0;  // logical pixels
};

}  // namespace

std::unique_ptr<Control> MakeListBox(HWND dialog, const ControlResource& resource,
                                     QWidget* parent) {
    return std::make_unique<ListBox>(dialog, resource, parent);
}
