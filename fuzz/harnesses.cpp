// What strangers hand to the game: each harness takes any bytes, through the game's real entry
// points. Faults: a crash, something the sanitizers see, a hang.
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

#include "dialogs/first_block.h"
#include "dialogs/link_list.h"
#include "model/puzzle_file.h"
#include "platform/qt/files/device_paths.h"
#include "platform/qt/network/network_module.h"
#include "platform/qt/process/bring_up.h"
#include "platform/qt/window/keep_state.h"
#include "platform/text.h"
#include "play/letter_entry.h"
#include "storage/paths.h"
#include "storage/progress.h"
#include "support/played_board.h"

namespace {

TemporaryHome& Home() {
    static TemporaryHome home;
    return home;
}

// A file read, parsed and numbered, then painted and played for some steps in all three sizes.
[[maybe_unused]] void puzzle(const std::string& bytes) {
    static auto& handheld = *new Handheld(Home());
    WriteBytes(Home().documents() / "p.puz", bytes);
    WCHAR path[MAX_PATH] = u"\\My Documents\\p.puz";
    ResetPlayerGrid = 1;
    if (!ReadPuzzleFile(path)) {
        return;
    }
    ParsePuzzle();
    for (const MagnificationFlags& size : {smallSize, mediumSize, largeSize}) {
        Magnification = size;
        ComputeLayout(MainWindow);
        RepaintFully(MainWindow);
        for (int key : {0x41, 0x5A, 0x28, 0x27, 0x0D, 0x08, 0x25}) {
            HandleKeyDown(key);
        }
        handheld.Tap(120, 100);
    }
}

// What is taken from a record comes back from the one that is written.
[[maybe_unused]] void record(const std::string& bytes) {
    WriteBytes(Home().documents() / "p.dat", bytes);
    WCHAR path[MAX_PATH] = u"\\My Documents\\p.dat";
    if (LoadProgress(path)) {
        const std::string kept = RecordOfPlay();
        SaveProgress(path);
        if (!LoadProgress(path) || RecordOfPlay() != kept) {
            std::abort();
        }
    }
}

[[maybe_unused]] void links(const std::string& bytes) {
    CopyPath(programFolderOnDevice, ProgramFolder);
    WriteBytes(Home().programFolder() / "quadrelhttplist.dat", bytes);
    std::vector<std::u16string> read;
    ReadLinks(read);
    WriteLinks(read);
}

// A server's answer with its head.
[[maybe_unused]] void answer(const std::string& bytes) {
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    QObject::connect(&server, &QTcpServer::newConnection, [&] {
        QTcpSocket* socket = server.nextPendingConnection();
        socket->write(bytes.data(), static_cast<qsizetype>(bytes.size()));
        socket->disconnectFromHost();
    });
    const QString link = QString("http://127.0.0.1:%1/").arg(server.serverPort());
    const std::u16string address = link.toStdU16String();
    static StartTransferFunction* const start = LoadNetworkModule();
    const std::unique_ptr<Transfer> transfer(start({address.c_str(), u"Example", 1048576}));
    while (!transfer->Ended()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    std::string block(32000, '\0');
    block.resize(transfer->Take(block.data(), block.size()));
    if (IsSquarePuzzle(block) && !IsWebPage(block)) {
        SuggestedName(block);
    }
}

[[maybe_unused]] void texts(const std::string& bytes) {
    const std::u16string wide = WidenPath(bytes);
    if (WidenPath(NarrowPath(wide)) != wide) {
        std::abort();
    }
    WidenText(bytes);
}

// What the host is given for a path comes back short enough for a record.
[[maybe_unused]] void paths(const std::string& bytes) {
    const auto host = ToHostPath(WidenPath(bytes));
    const auto device = host ? ToDevicePath(*host) : std::nullopt;
    if (device && (device->size() >= MAX_PATH || !ToHostPath(*device))) {
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argumentCount, char*** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    timeUntilKept = INT_MAX;
    BringHandheldUp(*argumentCount, *arguments).release();
    AnswerBoxes();
    Home();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    HARNESS({reinterpret_cast<const char*>(data), size});
    TakeShownMessages();
    return 0;
}
