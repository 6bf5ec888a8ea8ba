// Shows the message box of a missing file for as long as somebody needs to look at it:
// tools/dev/message_box_picture. Says where on the screen it is, waits for a line of input, closes
// the box, and says what it was. Ends with 0 when that is what it should be.
#include <cstdio>

#include "support/message_boxes.h"
#include "support/model_text.h"

namespace tamur::test {
namespace {

constexpr char kPath[] = "C:\\Modèles\\Bâtiment.txt";

void WaitForALine()
{
    const HWND box = FindWindowW(L"#32770", nullptr);
    RedrawWindow(box, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    RECT place = {};
    GetWindowRect(box, &place);
    std::printf("%ldx%ld+%ld+%ld\n", place.right - place.left, place.bottom - place.top, place.left,
                place.top);
    (void)std::fflush(stdout);
    (void)std::getchar();
}

int ShowBox()
{
    const CaughtMessageBoxes boxes(WaitForALine);
    const String path(Wide(kPath).c_str());
    const bool isRefused = NewReader()->Import(path.Get()) == E_FAIL;
    for (const auto& box : boxes.Boxes()) {
        std::printf("caption: %s\ntext: %s\nplain with one button: %s\nowner: %s\n",
                    box.caption.c_str(), box.text.c_str(), box.style == 0 ? "yes" : "no",
                    box.hasOwner ? "yes" : "no");
    }
    if (boxes.Boxes().size() != 1) return 1;
    const auto box = boxes.Boxes()[0];
    const bool isRight =
        box.caption == "Importation Tamur Structure" &&
        box.text == std::string("Impossible d'ouvrir le fichier Tamur (") + kPath + ")." &&
        box.style == 0 && !box.hasOwner;
    return isRefused && isRight ? 0 : 1;
}

}  // namespace
}  // namespace tamur::test

int main()
{
    return tamur::test::ShowBox();
}
