#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

#include "platform/dialogs.h"
#include "platform/qt/host/host_window.h"
#include "support/menus.h"
#include "support/played_board.h"

namespace {

class MessageBoxes : public PlayedBoard {
protected:
    // Asks while the action has the box.
    static int Ask(const std::function<void(QMessageBox*)>& action, UINT style = 0) {
        DoDuringNextMessageBox([action] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            action(box);
        });
        const std::u16string text =
            u"A question that is too long for a single line, with two\nparagraphs?";
        const int answer =
            MessageBoxW(MainWindow, text.c_str(), u"Question", MB_YESNO | MB_ICONQUESTION | style);
        EXPECT_EQ(TakeShownMessages(), (std::vector<ShownMessage>{{text, u"Question"}}));
        return answer;
    }
};

TEST_F(MessageBoxes, AnswerYesOnlyWhenItIsMeant) {
    struct Case {
        std::vector<Qt::Key> keys;
        UINT style;
        int answer;
    };
    const Case cases[] = {
        {{Qt::Key_Return}, 0, IDYES},
        {{Qt::Key_Return}, MB_DEFBUTTON2, IDNO},
        {{Qt::Key_Right, Qt::Key_Return}, 0, IDNO},
        {{Qt::Key_Left, Qt::Key_Return}, MB_DEFBUTTON2, IDYES},
        {{Qt::Key_Escape}, 0, IDNO},
        {{Qt::Key_N}, 0, IDNO},
        {{Qt::Key_Y}, MB_DEFBUTTON2, IDYES},
    };
    for (const auto& [keys, style, expected] : cases) {
        const auto press = [&keys](QMessageBox* box) {
            for (Qt::Key key : keys) {
                SendKey(box->focusWidget(), key);
            }
            while (box->isVisible()) {
                QCoreApplication::processEvents();
            }
        };
        EXPECT_EQ(Ask(press, style), expected) << keys[0];
    }
}

TEST_F(MessageBoxes, ShowAQuestionMarkAndAreNoWiderThanTheScreen) {
    for (double magnification : {1.0, 1.5, 2.0, 3.0}) {
        handheld->Resize(magnification);
        Ask([](QMessageBox* box) {
            EXPECT_EQ(box->icon(), QMessageBox::Question);
            EXPECT_LE(box->width(), Host().width());
        });
    }
}

}  // namespace
