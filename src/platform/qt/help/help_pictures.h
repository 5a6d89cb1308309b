// The artwork in the help's text.
#pragma once

#include <QtCore/QObject>
#include <QtGui/QTextObjectInterface>

// Draws the document's images from the artwork, always at the resolution of the screen, and in
// proportion to the text: their widths and heights are meant for text of 16 pixels.
class HelpPictures : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    using QObject::QObject;

    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int position,
                    const QTextFormat& format) override;
};
