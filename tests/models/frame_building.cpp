#include "models/frame_building.h"

#include <array>
#include <charconv>
#include <initializer_list>

namespace tamur::test {
namespace {

constexpr double kBayX = 6, kBayY = 5.4, kStorey = 3.1;

constexpr const char* kTables =
    "#Version\n14.1E\n#SP\n2\n#Espace\n2\n#Tolerance\n0.001\n#Rigide\n1\n"
    "#Groupes\n2 1 2 Poteaux Oui\n2 2 2 Poutres Oui\n3 1 3 Planchers Oui\n3 2 3 Voiles Oui\n"
    "1 1 1 Semelles Oui\n5 1 2 Semelles_filantes Oui\n"
    "#Materiaux\nC25/30 3.1e10 0.2 25000 1e-5 0.05\nC30/37 3.3e10 0.2 25000 1e-5 0.05\n"
    "#Geometries\n"
    "R30*30 0.09 0.075 0.075 0.001141 0.000675 0.000675 0.003802 0.0045 0.0045 0.0045 0.0045  "
    "4 F -0.15 -0.15  0.15 -0.15  0.15 0.15  -0.15 0.15 0\n"
    "R25*50 0.125 0.1042 0.1042 0.001788 0.002604 0.000651 0.007153 0.01042 0.005208 0.01042 "
    "0.005208  4 F -0.125 -0.25  0.125 -0.25  0.125 0.25  -0.125 0.25 0\n"
    "#Attaches\nENC 0 Encastrement - -\nART 7 Rotule - -\n"
    "#Cas\n1 Poids_propre 1 G 0\n2 Superstructure 1 G 0\n3 Exploitation 1 Q 0\n4 Vent 1 W 0\n"
    "5 Temperature 1 T 0\n101 1.35G+1.5Q 2 ELU 0\n102 G+Q+W 2 ELS 0\n301 Env 9 ENV 0\n"
    "#TAB_PARAM_CAS\n101 2 1 1.35 2 1.35 3 1.5 32767 0\n102 2 1 1 2 1 3 1 4 1 5 0.6 32767 0\n"
    "301 9 1 1 0 0 0 1 0 0 0 O 2 101 102\n"
    "#Elements\n";

struct Place {
    double x, y, z;
};

class Writer {
 public:
    explicit Writer(const FrameBuilding& building) : building_(building) {}

    std::string Write()
    {
        text_ = kTables;
        for (int storey = 0; storey <= building_.storeys; ++storey) {
            for (int x = 0; x <= building_.baysX; ++x) {
                for (int y = 0; y <= building_.baysY; ++y) Joint(x, y, storey);
            }
            if (storey > 0) EdgeLoads(storey);
        }
        for (const char* group : {"2 1", "2 2", "3 1", "3 2"}) {
            Element(8, {}, std::string("1 0 0 -1 ") + group);
        }
        Element(13, {}, "5 20 0 0 3 1");
        return std::move(text_);
    }

 private:
    [[nodiscard]] Place At(double x, double y, double z) const
    {
        return {kBayX * x, kBayY * y, kStorey * z};
    }

    void Element(int kind, std::initializer_list<Place> points, std::string_view columns)
    {
        Append(kind).Append(++identifier_).Append(0);
        Append(static_cast<int>(points.size())).Append(0);
        for (const Place& place : points) Append(place.x).Append(place.y).Append(place.z);
        text_ += "0 0 0 ";
        text_ += columns;
        text_ += '\n';
    }
    template <class Value>
    Writer& Append(Value value)
    {
        std::array<char, 32> digits;
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value);
        text_.append(digits.data(), end.ptr);
        text_ += ' ';
        return *this;
    }

    // What belongs to a joint: the column below, the beams and the slab that begin there.
    void Joint(int x, int y, int storey)
    {
        const Place joint = At(x, y, storey);
        Element(1, {joint}, "0");
        if (storey == 0) {
            Element(4, {joint}, "1 1 0 0 1e12 1e12 1e12 0 0 0 0 0 0 0 0 0 0.25");
        } else {
            Element(2, {At(x, y, storey - 1), joint}, "1 2 0 0 2 2 1 1 1 1 5 0 0 0 0 0");
            if (x == 0) Element(5, {joint}, "4 1 12000 0 0 0 0 0");
            if (x == 1 && y == 0) Element(9, {joint}, "500 500 500 0 0 0");
            Floor(x, y, storey);
        }
        if (y == 0 && x % 2 == 0 && x < building_.baysX && storey < building_.storeys) {
            Wall(x, storey);
        }
    }

    void Floor(int x, int y, int storey)
    {
        const Place joint = At(x, y, storey);
        const bool isBayX = x < building_.baysX, isBayY = y < building_.baysY;
        if (isBayX) {
            Element(2, {joint, At(x + 1, y, storey)}, "2 2 0 0 2 1 2 2 1 1 4 0 0 0 0 0");
        }
        if (isBayY) {
            Element(2, {joint, At(x, y + 1, storey)}, "2 2 0 0 2 1 2 2 2 2 4 0 0 0 0 0");
        }
        if (!isBayX || !isBayY) return;
        const std::initializer_list<Place> slab = {joint, At(x + 1, y, storey),
                                                   At(x + 1, y + 1, storey), At(x, y + 1, storey)};
        Element(3, slab, "1 3 1 1 12 10 0.2 0 0");
        Element(7, slab, "2 1 1500 1500 1500 0 0 -1");
        Element(7, slab, "3 1 2500 2500 2500 0 0 -1");
        if ((x + y) % 4 != 0) return;
        // A secondary beam with a well beside it.
        Element(2, {At(x, y + 0.5, storey), At(x + 1, y + 0.5, storey)},
                "2 2 0 0 2 1 2 2 2 2 4 0 0 0 0 0");
        Element(17,
                {At(x + 0.2, y + 0.6, storey), At(x + 0.6, y + 0.6, storey),
                 At(x + 0.6, y + 0.9, storey), At(x + 0.2, y + 0.9, storey)},
                "6 5");
    }

    void Wall(int x, int storey)
    {
        const Place start = At(x, 0, storey), end = At(x + 1, 0, storey);
        Element(3, {start, end, At(x + 1, 0, storey + 1), At(x, 0, storey + 1)},
                "2 3 2 1 5 6 0.18 0 0");
        Element(17,
                {At(x + 0.4, 0, storey), At(x + 0.6, 0, storey), At(x + 0.6, 0, storey + 0.7),
                 At(x + 0.4, 0, storey + 0.7)},
                "2 4");
        if (storey > 0) return;
        Element(10, {start, end}, "1 2 0 0 2e7 2e7 8e7 0 0 0 0 0 0 0 0 0 0.8");
    }

    // Cladding, over the whole length of two sides.
    void EdgeLoads(int storey)
    {
        for (const int y : {0, building_.baysY}) {
            Element(6, {At(0, y, storey), At(building_.baysX, y, storey)},
                    "2 1 4500 4500 0 0 -1 0 0 0");
        }
    }

    const FrameBuilding& building_;
    std::string text_;
    int identifier_ = 0;
};

}  // namespace

std::string Write(const FrameBuilding& building)
{
    return Writer(building).Write();
}

}  // namespace tamur::test
