#include "platform/qt/screen/popups.h"

#include <QtGui/QPainter>
#include <QtWidgets/QMenu>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>
#include <algorithm>

#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/input/tap_guard.h"
#include "platform/qt/look/fonts.h"
#include "platform/qt/screen/menu_object.h"
#include "platform/windows.h"

namespace {

// The usual style is made for one size of text. It widens the column of check marks with the text's
// height, but measures an item as if that column had its least width: texts of large menus would be
// cut. Its arrows never grow.
class MenuStyle : public QProxyStyle {
public:
    MenuStyle() : QProxyStyle("Fusion") {
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override {
        constexpr double columnPerHeight = 0.79;
        constexpr int leastColumn = 21;
        QSize item = QProxyStyle::sizeFromContents(type, option, size, widget);
        if (type == CT_MenuItem) {
            item.rwidth() += std::max(qRound(item.height() * columnPerHeight) - leastColumn, 0);
        }
        return item;
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (element == PE_IndicatorArrowRight) {
            DrawArrow(*painter, option->rect, option->palette.color(QPalette::WindowText));
        } else {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        }
    }

private:
    // Half as wide as high.
    static void DrawArrow(QPainter& painter, const QRectF& box, const QColor& color) {
        constexpr double share = 0.8;
        const double height = box.height() * share;
        const QPointF tail = box.center() - QPointF(height / 4, 0);
        const QPointF corners[] = {tail - QPointF(0, height / 2), tail + QPointF(height / 2, 0),
                                   tail + QPointF(0, height / 2)};
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawPolygon(corners, 3);
        painter.restore();
    }
};

void SetMenuStyle(QMenu* popup) {
    static auto* style = new MenuStyle;
    popup->setStyle(style);
}

void AddCommand(QMenu* popup, MenuItem& item, const MenuObject* root) {
    item.action = popup->addAction(QString::fromUtf16(item.resource->text));
    item.action->setCheckable(item.checked);
    item.action->setChecked(item.checked);
    const int command = item.resource->command;
    QObject::connect(item.action, &QAction::triggered, popup, [root, command] {
        GroundChanged();
        PostMessageW(root->owner, WM_COMMAND, static_cast<WPARAM>(command), 0);
    });
}

void FillPopup(QMenu* popup, MenuObject* menu, const MenuObject* root) {
    for (MenuItem& item : menu->items) {
        if (item.submenu != nullptr) {
            QMenu* submenu = popup->addMenu(QString::fromUtf16(item.resource->text));
            SetMenuStyle(submenu);
            FillPopup(submenu, item.submenu.get(), root);
        } else if (item.resource->text != nullptr) {
            AddCommand(popup, item, root);
        } else {
            popup->addSeparator();
        }
    }
}

void SizeWithScreen(QMenu* popup) {
    constexpr double em = 11;
    const QFont font = TextFont(em * ScreenMagnification(), false);
    popup->setFont(font);
    for (QMenu* submenu : popup->findChildren<QMenu*>()) {
        submenu->setFont(font);
    }
}

}  // namespace

QMenu* PopupOf(HMENU menu, HWND window, QWidget* host) {
    if (menu->popup == nullptr) {
        menu->popup = new QMenu(host);
        SetMenuStyle(menu->popup);
        FillPopup(menu->popup, menu, menu);
    }
    menu->owner = window;
    SizeWithScreen(menu->popup);
    return menu->popup;
}
