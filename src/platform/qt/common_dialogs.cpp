// The file-open chooser: the toolkit's own.
#include "platform/common_dialogs.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QUrl>
#include <QtGui/QScreen>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QListView>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStyledItemDelegate>

#include "platform/dialogs.h"
#include "platform/qt/device_paths.h"
#include "platform/qt/host_window.h"
#include "platform/qt/modal.h"

namespace {

// Where the player looked last; the game's own folder at first.
QString lastFolder;

QString StartFolder() {
    if (!lastFolder.isEmpty() && QDir(lastFolder).exists()) {
        return lastFolder;
    }
    const QString puzzles = DocumentsFolderOnHost() + "/Quadrel Puzzles";
    return QDir(puzzles).exists() ? puzzles : DocumentsFolderOnHost();
}

// "name\0pattern\0\0" to "name (pattern)", in either case of letters.
QString NameFilter(const WCHAR* filter) {
    const QString name = QString::fromUtf16(filter);
    const QString pattern = QString::fromUtf16(filter + name.size() + 1);
    return QString("%1 (%2 %3)").arg(name, pattern, pattern.toUpper());
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

QSize ChooserSize(const QFileDialog& dialog) {
    const QSizeF wanted = QSizeF(300, 220) * Host().Magnification();
    const QSizeF desktop = dialog.screen()->availableSize();
    constexpr double most = 0.9;
    return wanted.expandedTo(QSizeF(480, 360)).boundedTo(desktop * most).toSize();
}

// Names alone: beside the places there is no room for columns.
void MakeReadable(QFileDialog& dialog) {
    dialog.setViewMode(QFileDialog::List);
    dialog.resize(ChooserSize(dialog));
    if (auto* places = dialog.findChild<QListView*>("sidebar")) {
        places->setItemDelegate(new PlaceNames(places));
    }
    if (auto* splitter = dialog.findChild<QSplitter*>("splitter")) {
        splitter->setSizes({dialog.width() / 3, dialog.width() * 2 / 3});
    }
}

bool Choose(const OPENFILENAMEW& request, QString& chosen) {
    QFileDialog dialog(&Host(), QString::fromUtf16(request.lpstrTitle), StartFolder(),
                       NameFilter(request.lpstrFilter));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setSidebarUrls({QUrl::fromLocalFile(DocumentsFolderOnHost() + "/Quadrel Puzzles"),
                           QUrl::fromLocalFile(DocumentsFolderOnHost()),
                           QUrl::fromLocalFile(QDir::homePath())});
    MakeReadable(dialog);
    if (RunModal(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return false;
    }
    chosen = dialog.selectedFiles().constFirst();
    lastFolder = QFileInfo(chosen).path();
    return true;
}

void ExplainName(HWND owner, const WCHAR* title) {
    MessageBoxW(owner,
                u"The name of this file cannot be used: it is too long or has a backslash in it. "
                u"Please rename or move the file.",
                title, MB_OK);
}

bool CopyTo(WCHAR* buffer, DWORD size, const std::u16string& text) {
    if (text.size() >= size) {
        return false;
    }
    buffer[text.copy(buffer, text.size())] = 0;
    return true;
}

}  // namespace

BOOL GetOpenFileNameW(OPENFILENAMEW* request) {
    QString chosen;
    while (Choose(*request, chosen)) {
        const auto path = ToDevicePath(chosen);
        const std::u16string name = QFileInfo(chosen).fileName().toStdU16String();
        if (path && CopyTo(request->lpstrFile, request->nMaxFile, *path) &&
            CopyTo(request->lpstrFileTitle, request->nMaxFileTitle, name)) {
            return TRUE;
        }
        ExplainName(request->hwndOwner, request->lpstrTitle);
    }
    return FALSE;
}
