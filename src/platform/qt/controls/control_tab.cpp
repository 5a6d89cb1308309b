// Tab controls: the toolkit's tab bar, hanging from what is above it.
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QTabBar>

#include "platform/qt/controls/control.h"

namespace {

// Tabs as high as the bar, so that none is cut.
class TabWidget : public QTabBar {
public:
    using QTabBar::QTabBar;

protected:
    QSize tabSizeHint(int index) const override {
        return {QTabBar::tabSizeHint(index).width(), height()};
    }
};

struct TabControl : Control {
    TabControl(HWND owner, const ControlResource& described, QWidget* parent)
        : Control(owner, described) {
        auto* tabs = new TabWidget(parent);
        tabs->setShape(QTabBar::RoundedSouth);
        tabs->setExpanding(false);
        QObject::connect(tabs, &QTabBar::currentChanged, tabs, [this] { NotifyChange(); });
        Show(tabs);
    }

    QTabBar* Tabs() const {
        return static_cast<QTabBar*>(widget.data());
    }

    void NotifyChange() {
        NMHDR what{this, static_cast<UINT>(resource.id), TCN_SELCHANGE};
        SendMessageW(dialog, WM_NOTIFY, what.idFrom, reinterpret_cast<LPARAM>(&what));
    }

    LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam) override {
        const QSignalBlocker untold(Tabs());
        switch (message) {
            case TCM_GETCURSEL: return Tabs()->currentIndex();
            case TCM_SETCURSEL: return Select(static_cast<int>(wParam));
            case TCM_INSERTITEM:
                return Insert(static_cast<int>(wParam), *reinterpret_cast<const TCITEM*>(lParam));
            default: return Control::Answer(message, wParam, lParam);
        }
    }

    int Select(int tab) {
        const int before = Tabs()->currentIndex();
        Tabs()->setCurrentIndex(tab);
        return before;
    }

    int Insert(int position, const TCITEM& tab) {
        return Tabs()->insertTab(position, QString::fromUtf16(tab.pszText));
    }
};

}  // namespace

std::unique_ptr<Control> MakeTabControl(HWND dialog, const ControlResource& resource,
                                        QWidget* parent) {
    return std::make_unique<TabControl>(dialog, resource, parent);
}
