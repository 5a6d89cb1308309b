// Speed, each measurement beside its limit in the same run:
//
//   ParseFile        parsing a 15 by 15 file                 beside  CopyFileBytes
//   ReadAndParseFile the same with reading it                beside  CopyFileBytes
//   RepaintSame      PaintBoard of an unchanged board        beside  CopyBuffer
//   RepaintAll       PaintBoard, every cell changed          beside  CopyBuffer
//   RenderAll        the same with what is out of view       beside  CopyBuffer
//   CheckBoard       the checker's painting, a wrong letter  beside  PaintAfter, after the same
//   HintLetter, HintWord, HintPuzzle                         beside  PaintAfter, after the same
//   LetterKey        a key from its message on               beside  CopyBuffer
//
// These are named .../S/R for S cells a side at ratio R, in Large with numbers on, the
// board full of letters. All but RenderAll end with the view's copy on the screen: its pixels are
// rendered. CopyBuffer copies the whole off-screen buffer, pixel for pixel, into another one.
#include <benchmark/benchmark.h>

#include <QtWidgets/QApplication>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "app/layout.h"
#include "app/view.h"
#include "app/win_main.h"
#include "board/board_painter.h"
#include "board/checker.h"
#include "board/hints.h"
#include "model/puzzle.h"
#include "model/puzzle_file.h"
#include "model/puzzle_parser.h"
#include "platform/drawing.h"
#include "platform/qt/common/screen_layout.h"
#include "platform/qt/host/host_window.h"
#include "platform/qt/surface/drawing_context.h"
#include "platform/resources.h"
#include "platform/text.h"
#include "platform/windows.h"
#include "play/letter_entry.h"
#include "play/settings.h"
#include "storage/paths.h"
#include "tools/puzzle_text.h"

namespace {

namespace fs = std::filesystem;

const fs::path home = fs::temp_directory_path() / "quadrel-bench";

// Black squares in a slanted pattern, so that there are words of several lengths.
std::string BoardText(int side) {
    std::string grid = "Title: Bench\nGrid:\n";
    std::string clues = "Clues:\n";
    const auto isBlack = [side](int row, int col) {
        return row < 0 || col < 0 || row >= side || col >= side || (row * 3 + col * 2) % 13 == 12;
    };
    int number = 0;
    for (int row = 0; row < side; ++row) {
        for (int col = 0; col < side; ++col) {
            const bool black = isBlack(row, col);
            grid += black ? '#' : static_cast<char>('A' + (row * 7 + col * 5) % 26);
            const bool across = !black && isBlack(row, col - 1) && !isBlack(row, col + 1);
            const bool down = !black && isBlack(row - 1, col) && !isBlack(row + 1, col);
            number += across || down;
            const std::string clue = ": A clue of a usual length, neither long nor short\n";
            clues += across ? std::to_string(number) + " across" + clue : "";
            clues += down ? std::to_string(number) + " down" + clue : "";
        }
        grid += '\n';
    }
    return grid + clues;
}

void WritePuzzle(const fs::path& path, int side) {
    PuzzleTextError error;
    const auto bytes = CompilePuzzle(BoardText(side), error);
    if (!bytes) {
        std::fprintf(stderr, "bench puzzle, line %d: %s\n", error.line, error.reason.c_str());
        std::exit(1);
    }
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes->data()),
               static_cast<std::streamsize>(bytes->size()));
}

void OpenPuzzle(int side) {
    const std::string path = "\\My Documents\\bench" + std::to_string(side) + ".puz";
    CopyPath(WidenPath(path), CurrentPuzzlePath);
    ResetPlayerGrid = 1;
    if (!ReadPuzzleFile(CurrentPuzzlePath)) {
        std::abort();
    }
    ParsePuzzle();
    // A board full of letters is the slowest to paint.
    std::copy_n(SolutionGrid, side * side, PlayerGrid);
}

void SetUpView(int side, int ratio) {
    Host().resize(screenWidth * ratio, screenHeight * ratio);
    QCoreApplication::processEvents();
    OpenPuzzle(side);
    Magnification = {0, 0, 1};
    ShowNumbers = 1;
    ComputeLayout(MainWindow);
}

void ParseFile(benchmark::State& state) {
    OpenPuzzle(15);
    for (auto _ : state) {
        ParsePuzzle();
        benchmark::ClobberMemory();
    }
}

void ReadAndParseFile(benchmark::State& state) {
    OpenPuzzle(15);
    for (auto _ : state) {
        ReadPuzzleFile(CurrentPuzzlePath);
        ParsePuzzle();
        benchmark::ClobberMemory();
    }
}

void CopyFileBytes(benchmark::State& state) {
    OpenPuzzle(15);
    std::vector<char> copy(fs::file_size(home / "Documents" / "bench15.puz"));
    for (auto _ : state) {
        std::memcpy(copy.data(), PuzzleImage, copy.size());
        benchmark::ClobberMemory();
    }
}

// A surface renders when its pixels are asked for.
void RenderBitmap(HBITMAP bitmap) {
    benchmark::DoNotOptimize(bitmap->surface->Image().constBits());
}

void RenderBuffer() {
    RenderBitmap(OffscreenBuffer.bitmap);
}

void RepaintSame(benchmark::State& state) {
    SetUpView(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    for (auto _ : state) {
        PaintBoard(MainWindow);
        CopyViewToScreen(MainWindow);
    }
}

void ChangeEveryCell() {
    BackgroundColor ^= RGB(1, 1, 1);
    SquareColor ^= RGB(1, 1, 1);
}

void RepaintAll(benchmark::State& state) {
    SetUpView(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    for (auto _ : state) {
        ChangeEveryCell();
        PaintBoard(MainWindow);
        CopyViewToScreen(MainWindow);
    }
}

void RenderAll(benchmark::State& state) {
    SetUpView(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    for (auto _ : state) {
        ChangeEveryCell();
        PaintBoard(MainWindow);
        RenderBuffer();
    }
}

using Operation = void (*)(HWND);

// One wrong letter, so that the checker has nothing to say in a box.
void SpoilOneLetter() {
    PlayerGrid[0] = PlayerGrid[0] == 'A' ? 'B' : 'A';
}

// An operation on a board that PaintBoard left.
template <Operation operation>
void AfterPaint(benchmark::State& state) {
    SetUpView(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    SpoilOneLetter();
    for (auto _ : state) {
        state.PauseTiming();
        PaintBoard(MainWindow);
        CopyViewToScreen(MainWindow);
        state.ResumeTiming();
        operation(MainWindow);
    }
}

// The other way round: PaintBoard with its copy, on what the operation left.
template <Operation operation>
void PaintAfter(benchmark::State& state) {
    SetUpView(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    SpoilOneLetter();
    for (auto _ : state) {
        state.PauseTiming();
        operation(MainWindow);
        state.ResumeTiming();
        PaintBoard(MainWindow);
        CopyViewToScreen(MainWindow);
    }
}

void LetterKey(benchmark::State& state) {
    SetUpView(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    int key = 0;
    for (auto _ : state) {
        HandleKeyDown('A' + key++ % 26);
    }
}

void CopyBuffer(benchmark::State& state) {
    SetUpView(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    PaintBoard(MainWindow);
    HDC context = CreateCompatibleDC(OffscreenBuffer.context);
    HBITMAP bitmap = CreateCompatibleBitmap(OffscreenBuffer.context, BufferWidth, BufferHeight);
    SelectObject(context, bitmap);
    // Between surfaces that nobody has looked at, a copy would only be remembered.
    RenderBuffer();
    RenderBitmap(bitmap);
    for (auto _ : state) {
        BitBlt(context, 0, 0, BufferWidth, BufferHeight, OffscreenBuffer.context, 0, 0, SRCCOPY);
        benchmark::ClobberMemory();
    }
    DeleteDC(context);
    DeleteObject(bitmap);
}

void Boards(benchmark::internal::Benchmark* bench) {
    for (int side : {15, 40}) {
        for (int ratio : {1, 3}) {
            bench->Args({side, ratio});
        }
    }
    bench->Unit(benchmark::kMicrosecond);
}

BENCHMARK(CopyFileBytes)->Unit(benchmark::kMicrosecond);
BENCHMARK(ParseFile)->Unit(benchmark::kMicrosecond);
BENCHMARK(ReadAndParseFile)->Unit(benchmark::kMicrosecond);
BENCHMARK(CopyBuffer)->Apply(Boards);
BENCHMARK(RepaintSame)->Apply(Boards);
BENCHMARK(RepaintAll)->Apply(Boards);
BENCHMARK(RenderAll)->Apply(Boards);
BENCHMARK(LetterKey)->Apply(Boards);
BENCHMARK(AfterPaint<CheckPuzzle>)->Name("CheckBoard")->Apply(Boards);
BENCHMARK(PaintAfter<CheckPuzzle>)->Name("PaintAfterCheckBoard")->Apply(Boards);
BENCHMARK(AfterPaint<ShowLetterSolution>)->Name("HintLetter")->Apply(Boards);
BENCHMARK(PaintAfter<ShowLetterSolution>)->Name("PaintAfterHintLetter")->Apply(Boards);
BENCHMARK(AfterPaint<ShowWordSolution>)->Name("HintWord")->Apply(Boards);
BENCHMARK(PaintAfter<ShowWordSolution>)->Name("PaintAfterHintWord")->Apply(Boards);
BENCHMARK(AfterPaint<ShowPuzzleSolution>)->Name("HintPuzzle")->Apply(Boards);
BENCHMARK(PaintAfter<ShowPuzzleSolution>)->Name("PaintAfterHintPuzzle")->Apply(Boards);

}  // namespace

int main(int argumentCount, char** arguments) {
    fs::create_directories(home / "Documents");
    WritePuzzle(home / "Documents" / "bench15.puz", 15);
    WritePuzzle(home / "Documents" / "bench40.puz", 40);
    setenv("QUADREL_HOME", home.c_str(), 1);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argumentCount, arguments);
    InitInstance(&programResources, SW_SHOW);
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    fs::remove_all(home);
    return 0;
}
