#include "platform/qt/controls/list_widget.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyledItemDelegate>
#include <algorithm>

namespace {

class LineDelegate : public QStyledItemDelegate {
public:
    explicit LineDelegate(ListWidget* parent) : QStyledItemDelegate(parent), list(parent) {
    }

    // Texts of puzzles may hold line breaks; a line of the list is one line.
    QString displayText(const QVariant& value, const QLocale&) const override {
        QString text = value.toString();
        std::replace_if(
            text.begin(), text.end(), [](QChar each) { return each < u' '; }, u' ');
        return text;
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        if (list->Extent() == 0) {
            return {0, list->RowHeight()};
        }
        const int text = QStyledItemDelegate::sizeHint(option, index).width();
        return {std::max(text, list->Extent()), list->RowHeight()};
    }

private:
    ListWidget* list;
};

}  // namespace

ListWidget::ListWidget(QWidget* parent) : QListWidget(parent) {
    setItemDelegate(new LineDelegate(this));
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerItem);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setTabKeyNavigation(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
}

void ListWidget::SetMeasures(int row, int width) {
    rowHeight = std::max(row, 1);
    extent = width;
    setTextElideMode(extent == 0 ? Qt::ElideMiddle : Qt::ElideNone);
    setHorizontalScrollBarPolicy(extent == 0 ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    scheduleDelayedItemsLayout();
}

// On the way up, so that a slip of the stylus can still be put right: outside the list, nothing is
// chosen.
void ListWidget::mouseReleaseEvent(QMouseEvent* event) {
    QListWidget::mouseReleaseEvent(event);
    const QPoint where = event->position().toPoint();
    QListWidgetItem* item = viewport()->rect().contains(where) ? itemAt(where) : nullptr;
    if (event->button() == Qt::LeftButton && item != nullptr) {
        setCurrentItem(item);
        emit Chosen();
    }
}

void ListWidget::keyPressEvent(QKeyEvent* event) {
    const bool chooses = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                         event->key() == Qt::Key_Space;
    if (chooses && currentRow() >= 0) {
        emit Chosen();
    } else if (chooses || event->key() == Qt::Key_Escape) {
        event->ignore();
    } else if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right) {
        const int step = event->key() == Qt::Key_Left ? -rowHeight : rowHeight;
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + step);
    } else if (event->key() == Qt::Key_End) {
        setCurrentRow(count() - 1);
    } else {
        QListWidget::keyPressEvent(event);
    }
}

// The toolkit would make the first line the current one, though nobody has gone there.
void ListWidget::focusInEvent(QFocusEvent* event) {
    const bool noneSelected = selectedItems().empty();
    QListWidget::focusInEvent(event);
    if (noneSelected) {
        setCurrentRow(-1);
    }
}
