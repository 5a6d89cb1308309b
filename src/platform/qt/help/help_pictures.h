// The artwork in the help's text.
#pragma once

#include <QtCore/QObject>
#include <QtGui/QTextObjectInterface>

// Draws the document's images from the artwork, always at the resolution of the screen, and in
// proportion to the text: their widths and heights are meant for text of 16 pixels. Images that the
// text browser loads by itself keep their size when the text is enlarged, are soft on a dense
// screen, and stand on the line instead of in it, which makes it higher than others.
class HelpPictures : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    using QObject::QObject;

    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int position,
                    const QTextFormat& format) override;
};
