// The help viewer: one window of its own beside the game's.
#pragma once

#include <QtWidgets/QWidget>

class HelpPage;
class QToolBar;

class HelpWindow : public QWidget {
    Q_OBJECT

public:
    HelpWindow();

    void Open(const QUrl& chapter);

protected:
    // What the page does not take for itself.
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void AddTools(QToolBar* bar);
    void PlaceBesideGame(double em);

    HelpPage* page;
};

// "document.htm" or "document.htm#chapter". False when no such document is bundled.
bool ShowHelp(const QString& chapter);
