// The bar at the top of the screen with the title of the program.
#pragma once

#include <QtWidgets/QWidget>

class HostWindow;

class TitleBar : public QWidget {
    Q_OBJECT

public:
    explicit TitleBar(HostWindow* host);
    void SetTitle(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    HostWindow* host;
    QString title;
};
