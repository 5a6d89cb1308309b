// Answering the real message boxes, choosers and menus of a program under test.
#pragma once

#include <gtest/gtest.h>

#include <QtWidgets/QtWidgets>
#include <deque>
#include <filesystem>
#include <functional>
#include <utility>
#include <vector>

#include "platform/dialogs.h"
#include "platform/qt/dialogs/dialog_view.h"
#include "platform/text.h"
#include "platform/types.h"
#include "support/looks.h"

struct ShownMessage {
    std::u16string text;
    std::u16string title;
    bool operator==(const ShownMessage&) const = default;
};

struct ShownChooser {
    std::u16string title;
    std::filesystem::path folder;
    std::string name;  // the one suggested
};

// What the chooser suggests.
inline const std::filesystem::path asSuggested = ".";

// What is done with the next boxes of that kind.
template <typename Box>
std::deque<std::function<void(Box*)>> plans;
inline std::function<void()> duringNextBox;
inline std::string comparedName;
inline std::vector<ShownChooser> shownChoosers;
inline std::vector<ShownMessage> shownMessages;
inline int openedMenus = 0;

template <typename Box>
inline bool FollowsPlan(Box* box) {
    if (plans<Box>.empty()) {
        return false;
    }
    const auto plan = plans<Box>.front();
    plans<Box>.pop_front();
    plan(box);
    return true;
}

// Whatever it says: all of it can be seen, in a box not much wider than the game.
inline void ExpectReadable(const QLabel& text) {
    const QStringList lines =
        text.text().replace(QChar(QChar::LineSeparator), QChar(u'\n')).split(u'\n');
    for (const QString& line : lines) {
        EXPECT_LE(text.fontMetrics().horizontalAdvance(line.trimmed()), text.width());
    }
    EXPECT_LE(lines.size() * text.fontMetrics().lineSpacing(), text.height() + 1);
    EXPECT_TRUE(text.window()->rect().contains(text.geometry()));
    EXPECT_LE(text.window()->width(), 32 * text.fontInfo().pixelSize());
}

// A box's text is its last label; its buttons are named by their answers.
inline void Answer(QDialog* box) {
    const auto* label = box->findChildren<QLabel*>().last();
    ExpectReadable(*label);
    // Without the breaks that a box puts into long lines.
    const QString text = label->text().remove(QChar(QChar::LineSeparator));
    shownMessages.push_back({text.toStdU16String(), box->windowTitle().toStdU16String()});
    if (duringNextBox) {
        std::exchange(duringNextBox, nullptr)();
    }
    if (!FollowsPlan(box)) {
        box->close();
    }
}

inline void Answer(QFileDialog* dialog) {
    EXPECT_EQ(dialog->nameFilters(), QStringList("Puzzle files (*.puz *.PUZ)"));
    EXPECT_EQ(dialog->sidebarUrls().size(), 3);
    EXPECT_TRUE(dialog->testOption(QFileDialog::ReadOnly)) << "files can be deleted";
    for (const auto* view : dialog->findChildren<QAbstractItemView*>()) {
        EXPECT_EQ(view->dragDropMode(), QAbstractItemView::NoDragDrop);
    }
    const QList<int> widths = dialog->findChild<QSplitter*>("splitter")->sizes();
    EXPECT_NEAR(widths[1], 2 * widths[0], dialog->width() / 10);
    shownChoosers.push_back({dialog->windowTitle().toStdU16String(),
                             dialog->directory().absolutePath().toStdString(),
                             dialog->findChild<QLineEdit*>()->text().toStdString()});
    if (!FollowsPlan(dialog)) {
        dialog->reject();
    }
}

inline void Answer(QColorDialog* dialog) {
    FollowsPlan(dialog);
}

inline void Answer(QMenu* menu) {
    ++openedMenus;
    if (!FollowsPlan(menu)) {
        menu->close();
    }
}

inline void Answer(DialogView* dialog) {
    if (!FollowsPlan(dialog)) {
        EndDialog(dialog->ShownWindow(), 0);
    }
}

template <typename Box>
inline bool AnswerIfIs(QObject* object) {
    auto* box = qobject_cast<Box*>(object);
    if (box != nullptr) {
        QTimer::singleShot(0, box, [box] {
            if (const std::string name = std::exchange(comparedName, {}); !name.empty()) {
                ExpectLooksAsRecorded(box->grab().toImage(), name);
            }
            Answer(box);
        });
    }
    return box != nullptr;
}

class BoxWatcher : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Show) {
            AnswerIfIs<QFileDialog>(object) || AnswerIfIs<QColorDialog>(object) ||
                AnswerIfIs<QDialog>(object) || AnswerIfIs<QMenu>(object) ||
                AnswerIfIs<DialogView>(object);
        }
        return false;
    }
};

// For the main program of the tests, with the application object in place.
inline void AnswerBoxes() {
    QCoreApplication::instance()->installEventFilter(new BoxWatcher(QCoreApplication::instance()));
}

// The answer (IDOK, IDYES, IDNO) for the next box that nobody has planned an answer for yet.
// A box without a planned answer is closed like with Escape.
inline void AnswerNextMessageBox(int answer) {
    plans<QDialog>.emplace_back([answer](QDialog* box) {
        auto* button = box->findChild<QPushButton*>(QString::number(answer));
        button != nullptr ? button->click() : box->reject();
    });
}

// Something that happens while the next box is open, before it is answered.
inline void DoDuringNextMessageBox(std::function<void()> action) {
    duringNextBox = std::move(action);
}

inline void PrintTo(const ShownMessage& message, std::ostream* out) {
    *out << NarrowPath(message.title) << " | " << NarrowPath(message.text);
}

// All boxes shown since the last call.
inline std::vector<ShownMessage> TakeShownMessages() {
    return std::exchange(shownMessages, {});
}

// The file that the next file chooser is given; an empty path cancels it, and so does having
// planned nothing. A bare name is one in the folder that the chooser shows.
inline void ChooseNextFile(const std::filesystem::path& file) {
    plans<QFileDialog>.emplace_back([file](QFileDialog* dialog) {
        if (file != asSuggested) {
            dialog->selectFile(QString::fromStdString(file.string()));
        }
        QMetaObject::invokeMethod(dialog, file.empty() ? "reject" : "accept");
    });
}

// The colour that the next colour chooser is given, and whether it is accepted or cancelled.
inline void PickNextColor(COLORREF color, bool accept) {
    plans<QColorDialog>.emplace_back([color, accept](QColorDialog* dialog) {
        dialog->setCurrentColor(QColor(GetRValue(color), GetGValue(color), GetBValue(color)));
        const auto button = accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel;
        dialog->findChild<QDialogButtonBox*>()->button(button)->click();
    });
}

// What is done with the next menu of the program, which is still open then.
inline void UseNextMenu(std::function<void(QMenu*)> use) {
    plans<QMenu> = {std::move(use)};
}

// The next box, chooser or menu is compared with its picture of that name (looks.h).
inline void CompareNextBox(const std::string& name) {
    comparedName = name;
}

// A test that failed may not have used all of its plans.
inline void ForgetPlans() {
    plans<QDialog>.clear();
    plans<QFileDialog>.clear();
    duringNextBox = nullptr;
}

// All file choosers shown since the last call.
inline std::vector<ShownChooser> TakeShownChoosers() {
    return std::exchange(shownChoosers, {});
}

// How many popup menus were opened since the last call. Each is closed again at once.
inline int TakeOpenedMenus() {
    return std::exchange(openedMenus, 0);
}
