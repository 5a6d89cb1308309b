// The soft input panel: a keyboard that types into whatever has the focus.
#pragma once

#include <QtWidgets/QWidget>
#include <vector>

class SoftInputPanel : public QWidget {
    Q_OBJECT

public:
    explicit SoftInputPanel(QWidget* host);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    struct Key {
        QString plain;    // what it types, or the caption of a special key
        QString shifted;  // empty for a special key
        int code;         // 0 for a key that types its text
        QRectF place;     // logical pixels in the panel
    };

    void AddRow(int row, double left, const QStringList& plain, const QStringList& shifted);
    void AddSpecial(const QString& caption, int code, const QRectF& place);
    void PaintKey(QPainter& painter, size_t index) const;
    int KeyAt(QPointF point) const;
    void Press(const Key& key);

    std::vector<Key> keys;
    int pressed = -1;
    bool shift = false;
};
