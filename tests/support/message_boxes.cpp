#include "support/message_boxes.h"

#include <gtest/gtest.h>

#include <QtCore/QEvent>
#include <QtCore/QTimer>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <deque>
#include <ostream>
#include <utility>

#include "platform/dialogs.h"
#include "platform/qt/dialogs/dialog_view.h"
#include "platform/text.h"
#include "support/looks.h"

namespace {

// What is done with the next boxes of that kind.
template <typename Box>
std::deque<std::function<void(Box*)>> plans;
std::function<void()> duringNextBox;
std::string comparedName;
std::vector<ShownChooser> shownChoosers;
std::vector<ShownMessage> shownMessages;
int openedMenus = 0;

template <typename Box>
bool FollowsPlan(Box* box) {
    if (plans<Box>.empty()) {
        return false;
    }
    const auto plan = plans<Box>.front();
    plans<Box>.pop_front();
    plan(box);
    return true;
}

// Whatever it says: all of it can be seen, in a box not much wider than the game.
void ExpectReadable(const QLabel& text) {
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
void Answer(QDialog* box) {
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

void Answer(QFileDialog* dialog) {
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

void Answer(QColorDialog* dialog) {
    FollowsPlan(dialog);
}

void Answer(QMenu* menu) {
    ++openedMenus;
    if (!FollowsPlan(menu)) {
        menu->close();
    }
}

void Answer(DialogView* dialog) {
    if (!FollowsPlan(dialog)) {
        EndDialog(dialog->ShownWindow(), 0);
    }
}

template <typename Box>
bool AnswerIfIs(QObject* object) {
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

}  // namespace

void AnswerBoxes() {
    QCoreApplication::instance()->installEventFilter(new BoxWatcher(QCoreApplication::instance()));
}

void AnswerNextMessageBox(int answer) {
    plans<QDialog>.emplace_back([answer](QDialog* box) {
        auto* button = box->findChild<QPushButton*>(QString::number(answer));
        button != nullptr ? button->click() : box->reject();
    });
}

void DoDuringNextMessageBox(std::function<void()> action) {
    duringNextBox = std::move(action);
}

void PrintTo(const ShownMessage& message, std::ostream* out) {
    *out << NarrowPath(message.title) << " | " << NarrowPath(message.text);
}

std::vector<ShownMessage> TakeShownMessages() {
    return std::exchange(shownMessages, {});
}

// The button's own way, so that the chooser's checks run.
void ChooseNextFile(const std::filesystem::path& file) {
    plans<QFileDialog>.emplace_back([file](QFileDialog* dialog) {
        if (file != asSuggested) {
            dialog->selectFile(QString::fromStdString(file.string()));
        }
        QMetaObject::invokeMethod(dialog, file.empty() ? "reject" : "accept");
    });
}

void PickNextColor(COLORREF color, bool accept) {
    plans<QColorDialog>.emplace_back([color, accept](QColorDialog* dialog) {
        dialog->setCurrentColor(QColor(GetRValue(color), GetGValue(color), GetBValue(color)));
        const auto button = accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel;
        dialog->findChild<QDialogButtonBox*>()->button(button)->click();
    });
}

void UseNextMenu(std::function<void(QMenu*)> use) {
    plans<QMenu> = {std::move(use)};
}

void UseNextDialog(std::function<void()> use) {
    plans<DialogView> = {[use = std::move(use)](DialogView*) { use(); }};
}

void CompareNextBox(const std::string& name) {
    comparedName = name;
}

void ForgetPlans() {
    plans<QDialog>.clear();
    plans<QFileDialog>.clear();
    duringNextBox = nullptr;
}

std::vector<ShownChooser> TakeShownChoosers() {
    return std::exchange(shownChoosers, {});
}

int TakeOpenedMenus() {
    return std::exchange(openedMenus, 0);
}
