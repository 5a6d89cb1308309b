// The text of the help: a column of readable width, in its own colours, that can be enlarged.
#pragma once

#include <QtWidgets/QTextBrowser>
#include <functional>

class HelpPage : public QTextBrowser {
    Q_OBJECT

public:
    // The text's em, in pixels.
    HelpPage(QWidget* parent, double em);

    // One step is a tenth of the size; both ends are bounded.
    void Enlarge(int steps);
    void ShowUsualSize();

    // Jumps to the chapter of the bundled help, or opens a web address in the user's browser.
    void Follow(const QUrl& link);

protected:
    void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void SetZoom(int steps);
    void FitColumn();
    double RoomBelow() const;
    void KeepingPlace(const std::function<void()>& change);

    double usualEm;
    int zoom = 0;
    int wheelTurn = 0;  // in eighths of a degree, less than a step
};
