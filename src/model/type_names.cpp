#include "model/type_names.h"

namespace tamur {

WideView BarTypeName(int code)
{
    static constexpr WideView kNames[] = {OLESTR(""),        OLESTR("Barre"),   OLESTR("Poutre"),
                                          OLESTR("PoutreV"), OLESTR("PoutreC"), OLESTR("Tirant")};
    return kNames[code >= 1 && code <= 5 ? code : 0];
}

WideView SurfaceTypeName(int code)
{
    static constexpr WideView kNames[] = {
        OLESTR("Coque"),    OLESTR("Membrane"), OLESTR("Plaque"),    OLESTR("Coque"),
        OLESTR("Plaque E"), OLESTR("Coque E"),  OLESTR("Déf Plane"), OLESTR("Axisym")};
    return kNames[code >= 1 && code <= 7 ? code : 0];
}

WideView SupportTypeText(SupportKind kind, int condition)
{
    static constexpr WideView kTexts[3][4] = {
        {OLESTR("Appui ponctuel vide"), OLESTR("Appui ponctuel rigide"),
         OLESTR("Appui ponctuel élastique"), OLESTR("Appui ponctuel butée")},
        {OLESTR("Appui linéaire vide"), OLESTR("Appui linéaire rigide"),
         OLESTR("Appui linéaire élastique"), OLESTR("Appui linéaire butée")},
        {OLESTR("Appui surfacique vide"), OLESTR("Appui surfacique rigide"),
         OLESTR("Appui surfacique élastique"), OLESTR("Appui surfacique butée")}};
    return kTexts[static_cast<int>(kind)][condition >= 1 && condition <= 3 ? condition : 0];
}

WideView GroupTypeName(int elementKind, int code)
{
    switch (elementKind) {
        case 1: return SupportTypeText(SupportKind::kPoint, code);
        case 2: return BarTypeName(code);
        case 3: return SurfaceTypeName(code);
        case 4: return SupportTypeText(SupportKind::kSurface, code);
        case 5: return SupportTypeText(SupportKind::kLine, code);
        default: return OLESTR("");
    }
}

}  // namespace tamur
