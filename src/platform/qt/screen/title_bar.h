// The bar at the top of the screen with the title of the program.
#pragma once

#include <QtWidgets/QAbstractButton>

class TitleBar : public QWidget {
    Q_OBJECT

public:
    explicit TitleBar(QWidget* host);
    void SetTitle(const QString& text);
    // The shell's OK.
    void ShowDoneButton(bool shown);

signals:
    void Done();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QString title;
    QAbstractButton* doneButton;
};
