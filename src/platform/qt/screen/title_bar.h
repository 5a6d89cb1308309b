// The bar at the top of the screen with the title of the program.
#pragma once

#include <QtWidgets/QAbstractButton>

class HostWindow;

class TitleBar : public QWidget {
    Q_OBJECT

public:
    explicit TitleBar(HostWindow* host);
    void SetTitle(const QString& text);
    // The shell's OK, which sends command 1 to the top window.
    void ShowDoneButton(bool shown);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    HostWindow* host;
    QString title;
    QAbstractButton* doneButton = nullptr;  // made for the first dialog
};
