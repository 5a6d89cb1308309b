#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

#include "platform/dialogs.h"
#include "platform/qt/host_window.h"
#include "support/menus.h"
#include "support/played_board.h"

namespace {

class MessageBoxes : public PlayedBoard {
protected:
    // Asks while the action has the box.
    static int Ask(const std::function<void(QMessageBox*)>& action) {
        DoDuringNextMessageBox([action] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            action(box);
        });
        const std::u16string text =
            u"A question that is too long for a single line, with two\nparagraphs?";
        const int answer =
            MessageBoxW(MainWindow, text.c_str(), u"Question", MB_YESNO | MB_ICONQUESTION);
        EXPECT_EQ(TakeShownMessages(), (std::vector<ShownMessage>{{text, u"Question"}}));
        return answer;
    }
};

TEST_F(MessageBoxes, AnswerYesOnlyWhenItIsMeant) {
    const std::pair<std::vector<Qt::Key>, int> cases[] = {{{Qt::Key_Return}, IDNO},
                                                          {{Qt::Key_Escape}, IDNO},
                                                          {{Qt::Key_N}, IDNO},
                                                          {{Qt::Key_Y}, IDYES},
                                                          {{Qt::Key_Left, Qt::Key_Return}, IDYES}};
    for (const auto& [keys, expected] : cases) {
        const int answer = Ask([&keys](QMessageBox* box) {
            for (Qt::Key key : keys) {
                SendKey(box->focusWidget(), key);
            }
            while (box->isVisible()) {
                QCoreApplication::processEvents();
            }
        });
        EXPECT_EQ(answer, expected) << keys[0];
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
