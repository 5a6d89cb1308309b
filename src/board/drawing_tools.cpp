#include "board/drawing_tools.h"

#include "platform/resources.h"

HFONT CreateFontOf(std::u16string_view face, int height, int weight) {
    LOGFONTW description;
    description.lfHeight = height;
    description.lfWeight = weight;
    face.copy(description.lfFaceName, LF_FACESIZE - 1);
    return CreateFontIndirectW(&description);
}

int HeightOfLines(HDC context, int linesPerInch) {
    return -(GetDeviceCaps(context, LOGPIXELSY) / linesPerInch);
}

void DrawPicture(HDC context, int bitmap, const RECT& place) {
    HDC memory = CreateCompatibleDC(context);
    const Owned picture(LoadBitmapW(&programResources, bitmap));
    {
        const Selected selected(memory, picture);
        BitBlt(context, place.left, place.top, place.right - place.left, place.bottom - place.top,
               memory, 0, 0, SRCCOPY);
    }
    DeleteDC(memory);
}
