#include "accessors/type_names.h"

namespace tamur {

WideStringView BarTypeName(int code)
{
    static constexpr WideStringView kNames[] = {OLESTR(""),        OLESTR("Barre"),
                                                OLESTR("Poutre"),  OLESTR("PoutreV"),
                                                OLESTR("PoutreC"), OLESTR("Tirant")};
    return kNames[code >= 1 && code <= 5 ? code : 0];
}

WideStringView SurfaceTypeName(int code)
{
    static constexpr WideStringView kNames[] = {
        OLESTR("Coque"),    OLESTR("Membrane"), OLESTR("Plaque"),    OLESTR("Coque"),
        OLESTR("Plaque E"), OLESTR("Coque E"),  OLESTR("Déf Plane"), OLESTR("Axisym")};
    return kNames[code >= 1 && code <= 7 ? code : 0];
}

WideStringView SupportTypeText(SupportKind kind, int condition)
{
    static constexpr WideStringView kTexts[3][4] = {
        {OLESTR("Appui ponctuel vide"), OLESTR("Appui ponctuel rigide"),
         OLESTR("Appui ponctuel élastique"), OLESTR("Appui ponctuel butée")},
        {OLESTR("Appui linéaire vide"), OLESTR("Appui linéaire rigide"),
         OLESTR("Appui linéaire élastique"), OLESTR("Appui linéaire butée")},
        {OLESTR("Appui surfacique vide"), OLESTR("Appui surfacique rigide"),
         OLESTR("Appui surfacique élastique"), OLESTR("Appui surfacique butée")}};
    return kTexts[static_cast<int>(kind)][condition >= 1 && condition <= 3 ? condition : 0];
}

WideStringView GroupTypeName(int elementKind, int code)
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
