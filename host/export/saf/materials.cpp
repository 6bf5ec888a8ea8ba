#include <algorithm>
#include <array>

#include "host/export/saf/model.h"

namespace tamur::host::saf {
namespace {

constexpr LossText kDamping = {LossType::kPartly,
                               {"there is no column for damping ratios",
                                "il n'y a pas de colonne pour les taux d'amortissement"}};
constexpr LossText kType = {
    LossType::kAssumed,
    {"what a material is (concrete, steel, ...) follows from its name, else it is Other",
     "la nature d'un matériau (béton, acier, ...) suit de son nom, sinon c'est Other"}};

constexpr double kGravity = 9.81;  // as the format's own examples have it

bool BeginsWith(std::string_view name, std::string_view beginning)
{
    return name.size() >= beginning.size() &&
           std::equal(beginning.begin(), beginning.end(), name.begin(), [](char a, char b) {
               return a == (b >= 'a' && b <= 'z' ? static_cast<char>(b - 'a' + 'A') : b);
           });
}

// "S" of "S235", but not of "Sapin".
bool BeginsWithAndDigit(std::string_view name, std::string_view beginning)
{
    return BeginsWith(name, beginning) && name.size() > beginning.size() &&
           name[beginning.size()] >= '0' && name[beginning.size()] <= '9';
}

const char* TypeOf(std::string_view name)
{
    if (BeginsWithAndDigit(name, "C") && name.find('/') != name.npos) return "Concrete";
    for (const std::string_view word : {"BETON", "B\u00C9TON", "B\u00E9ton", "CONCRETE"}) {
        if (BeginsWith(name, word) || name.starts_with(word)) return "Concrete";
    }
    for (const std::string_view word : {"ACIER", "STEEL", "INOX"}) {
        if (BeginsWith(name, word)) return "Steel";
    }
    for (const std::string_view word : {"BOIS", "TIMBER"}) {
        if (BeginsWith(name, word)) return "Timber";
    }
    for (const std::string_view grade : {"C", "D", "GL"}) {
        if (BeginsWithAndDigit(name, grade)) return "Timber";
    }
    if (BeginsWithAndDigit(name, "S")) return "Steel";
    if (BeginsWith(name, "ALU")) return "Aluminium";
    return "Other";
}

}  // namespace

void WriteMaterials(Model& model)
{
    Names names;
    for (const Material& material : model.structure.materials) {
        const std::string otherwise = "MAT" + std::to_string(model.materials.size() + 1);
        const std::string name = names.Take(material.name, otherwise);
        model.materials.push_back(name);
        if (material.damping != 0) model.report.losses.Add(Kind::kMaterial, kDamping);
        model.report.losses.Add(Kind::kMaterial, kType);
        Row row;
        row.Text(name).Text(TypeOf(material.name)).Text(name);
        row.Number(material.weight / kGravity).Number(material.modulus * 1e-6);
        row.Number(material.modulus * 1e-6 / (2 * (1 + material.poisson)));
        row.Number(material.poisson).Number(material.expansion);
        row.Text(
            model.ids.Take(Kind::kMaterial, static_cast<std::int64_t>(model.materials.size())));
        model.book.Add(model.layouts.material, row);
    }
}

}  // namespace tamur::host::saf
