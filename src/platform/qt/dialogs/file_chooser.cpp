// The file choosers: the toolkit's own.
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QUrl>
#include <QtGui/QFontMetrics>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QListView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QToolButton>
#include <algorithm>
#include <string_view>

#include "platform/common_dialogs.h"
#include "platform/dialogs.h"
#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/dialogs/modal.h"
#include "platform/qt/files/device_paths.h"
#include "platform/qt/host/host_window.h"

namespace {

// Where the player looked last; the game's own folder at first.
QString lastFolder;

QString StartFolder() {
    if (!lastFolder.isEmpty() && QDir(lastFolder).exists()) {
        return lastFolder;
    }
    const QString puzzles = PuzzlesFolderOnHost();
    return QDir(puzzles).exists() ? puzzles : DocumentsFolderOnHost();
}

QString PatternOf(const WCHAR* filter) {
    return QString::fromUtf16(filter + std::u16string_view(filter).size() + 1);
}

// A folder goes by its own name, but the home's is that of the user.
class PlaceNames : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.data(Qt::ToolTipRole).toString() == QDir::homePath()) {
            option->text = "Home";
        }
    }
};

// As high as the text beside them. Those on the buttons only repeat what stands there.
void SizeSigns(const QFileDialog& dialog) {
    constexpr int toolkitsSmallest = 16;
    const int side = std::max(QFontMetrics(ModalFont()).ascent(), toolkitsSmallest);
    for (auto* button : dialog.findChildren<QToolButton*>()) {
        button->setIconSize({side, side});
    }
    for (auto* view : dialog.findChildren<QAbstractItemView*>()) {
        view->setIconSize({side, side});
    }
    for (auto* choice : dialog.findChildren<QComboBox*>()) {
        choice->setIconSize({side, side});
    }
    for (auto* button : dialog.findChildren<QPushButton*>()) {
        button->setIcon({});
    }
}

// Names alone, and of one type: a small screen has no room for columns and for every button.
void MakeReadable(QFileDialog& dialog) {
    dialog.setViewMode(QFileDialog::List);
    for (const char* name : {"lookInLabel", "forwardButton", "listModeButton", "detailModeButton",
                             "fileTypeLabel", "fileTypeCombo"}) {
        if (auto* part = dialog.findChild<QWidget*>(name)) {
            part->hide();
        }
    }
    const QSizeF size = QSizeF(300, 220) * ScreenMagnification();
    dialog.resize(size.expandedTo(QSizeF(480, 360)).toSize());
    FitIntoScreen(dialog);
    if (auto* places = dialog.findChild<QListView*>("sidebar")) {
        places->setItemDelegate(new PlaceNames(places));
    }
    if (auto* splitter = dialog.findChild<QSplitter*>("splitter")) {
        splitter->setSizes({dialog.width() / 3, dialog.width() * 2 / 3});
    }
}

// "name\0pattern\0\0" to "name (pattern)", in either case of letters.
QString NameFilter(const WCHAR* filter) {
    const QString pattern = PatternOf(filter);
    return QString("%1 (%2 %3)").arg(QString::fromUtf16(filter), pattern, pattern.toUpper());
}

// It chooses and does nothing else: a swipe would drag a puzzle into the folder above it.
void LockFiles(QFileDialog& dialog) {
    dialog.setOption(QFileDialog::ReadOnly);
    for (auto* view : dialog.findChildren<QAbstractItemView*>()) {
        view->setDragDropMode(QAbstractItemView::NoDragDrop);
    }
    if (auto* newFolder = dialog.findChild<QToolButton*>("newFolderButton")) {
        newFolder->hide();
    }
}

void SetUp(QFileDialog& dialog, const OPENFILENAMEW& request) {
    dialog.setWindowTitle(QString::fromUtf16(request.lpstrTitle));
    dialog.setNameFilter(NameFilter(request.lpstrFilter));
    dialog.setSidebarUrls({QUrl::fromLocalFile(PuzzlesFolderOnHost()),
                           QUrl::fromLocalFile(DocumentsFolderOnHost()),
                           QUrl::fromLocalFile(QDir::homePath())});
    MakeReadable(dialog);
    LockFiles(dialog);
}

bool Run(QFileDialog& dialog, QString& chosen) {
    SizeSigns(dialog);
    if (RunModal(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return false;
    }
    chosen = dialog.selectedFiles().constFirst();
    lastFolder = QFileInfo(chosen).path();
    return true;
}

bool ChooseToOpen(const OPENFILENAMEW& request, QString& chosen) {
    QFileDialog dialog(&Host(), {}, StartFolder());
    SetUp(dialog, request);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return Run(dialog, chosen);
}

// The nearest folder that is there, should the wanted one be gone.
QString PresentFolder(QString folder) {
    while (!QDir(folder).exists()) {
        folder = QFileInfo(folder).path();
    }
    return folder;
}

// What was chosen before is where the chooser opens again. It does not ask itself before it
// replaces a file: some desktops' choosers do so before the extension is added.
bool ChooseToSave(const OPENFILENAMEW& request, QString& chosen) {
    const qsizetype nameStart = chosen.lastIndexOf('/') + 1;
    QFileDialog dialog(&Host(), {}, PresentFolder(chosen.left(nameStart)));
    SetUp(dialog, request);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(QFileInfo(PatternOf(request.lpstrFilter)).suffix());
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    if (nameStart < chosen.size()) {
        dialog.selectFile(chosen.mid(nameStart));
    }
    const bool accepted = Run(dialog, chosen);
    // For the toolkit, a name that ends with a dot has an extension.
    if (accepted && chosen.endsWith('.')) {
        chosen += dialog.defaultSuffix();
    }
    return accepted;
}

void Explain(const OPENFILENAMEW& request, const std::u16string& text) {
    MessageBoxW(request.hwndOwner, text.c_str(), request.lpstrTitle, MB_OK);
}

void ExplainName(const OPENFILENAMEW& request, const std::u16string& advice) {
    Explain(request,
            u"The name of this file cannot be used: it is too long or has a backslash in it. " +
                advice);
}

// Told here, the player can choose again; later everything would have to be downloaded again.
bool FolderTakesFiles(const QString& chosen) {
    const QFileInfo folder(QFileInfo(chosen).path());
    return folder.isDir() && folder.isWritable();
}

bool MayReplace(const OPENFILENAMEW& request, const QString& chosen) {
    const QFileInfo file(chosen);
    if (!file.exists()) {
        return true;
    }
    const std::u16string question =
        file.fileName().toStdU16String() + u" is there already. Do you want to replace it?";
    return MessageBoxW(request.hwndOwner, question.c_str(), request.lpstrTitle,
                       MB_YESNO | MB_ICONQUESTION) == IDYES;
}

bool HasUsableName(const OPENFILENAMEW& request, const QString& chosen) {
    const auto path = ToDevicePath(chosen);
    const auto nameSize = static_cast<std::size_t>(QFileInfo(chosen).fileName().size());
    return path && path->size() < request.nMaxFile && nameSize < request.nMaxFileTitle;
}

void CopyTo(WCHAR* buffer, const std::u16string& text) {
    buffer[text.copy(buffer, text.size())] = 0;
}

void Answer(OPENFILENAMEW& request, const QString& chosen) {
    CopyTo(request.lpstrFile, *ToDevicePath(chosen));
    CopyTo(request.lpstrFileTitle, QFileInfo(chosen).fileName().toStdU16String());
}

}  // namespace

BOOL GetOpenFileNameW(OPENFILENAMEW* request) {
    QString chosen;
    while (ChooseToOpen(*request, chosen)) {
        if (HasUsableName(*request, chosen)) {
            Answer(*request, chosen);
            return TRUE;
        }
        ExplainName(*request, u"Please rename or move the file.");
    }
    return FALSE;
}

BOOL GetSaveFileNameW(OPENFILENAMEW* request) {
    QString chosen = ToHostPath(request->lpstrFile).value_or(StartFolder() + '/');
    while (ChooseToSave(*request, chosen)) {
        if (!HasUsableName(*request, chosen)) {
            ExplainName(*request, u"Please choose another name or folder.");
        } else if (!FolderTakesFiles(chosen)) {
            Explain(*request, u"Nothing can be saved in this folder. Please choose another one.");
        } else if (MayReplace(*request, chosen)) {
            Answer(*request, chosen);
            return TRUE;
        }
    }
    return FALSE;
}
