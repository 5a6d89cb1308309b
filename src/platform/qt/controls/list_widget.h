// The list of a list box: lines of one height that are chosen by a tap, or by Enter or the space
// bar where the arrow keys have gone to.
#pragma once

#include <QtWidgets/QListWidget>

class ListWidget : public QListWidget {
    Q_OBJECT

public:
    explicit ListWidget(QWidget* parent);

    // The height of a line and the width to scroll over, in this widget's pixels; without a width,
    // long lines are shortened.
    void SetMeasures(int rowHeight, int extent);
    int RowHeight() const {
        return rowHeight;
    }
    int Extent() const {
        return extent;
    }

signals:
    void Chosen();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    int rowHeight = 1;
    int extent = 0;
};
