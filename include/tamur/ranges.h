// The tables of a reader as ranges of records:
//
//     for (const auto& node : tamur::Nodes(*reader)) use(node->identifier);
//
// Every range holds its accessor; the reader must outlive it.
#pragma once

#include <tamur/component.h>
#include <tamur/records.h>

#include <cstddef>
#include <iterator>

namespace tamur {

// The records that an accessor serves. `GetCount` and `GetAtRank` are its methods.
template <class PublicRecord, class Accessor, auto GetCount, auto GetAtRank>
class Range {
 public:
    explicit Range(ComPtr<Accessor> accessor) : accessor_(std::move(accessor)) {}

    class Iterator {
     public:
        using value_type = Record<PublicRecord>;
        using difference_type = std::ptrdiff_t;
        using iterator_category = std::input_iterator_tag;

        Iterator() = default;
        Iterator(const Range* range, LONG rank) : range_(range), rank_(rank) {}

        Record<PublicRecord> operator*() const { return range_->At(rank_); }
        Iterator& operator++()
        {
            ++rank_;
            return *this;
        }
        void operator++(int) { ++rank_; }
        bool operator==(const Iterator& other) const { return rank_ == other.rank_; }
        bool operator!=(const Iterator& other) const { return rank_ != other.rank_; }

     private:
        const Range* range_ = nullptr;
        LONG rank_ = 0;
    };

    [[nodiscard]] LONG Size() const
    {
        LONG count = 0;
        Check((accessor_.Get()->*GetCount)(&count), "counting records");
        return count;
    }

    // Throws ComponentError for a rank outside the table; surfaces, openings, walls and nodes
    // end the process then.
    [[nodiscard]] Record<PublicRecord> At(LONG rank) const
    {
        Record<PublicRecord> record;
        Check((accessor_.Get()->*GetAtRank)(rank, &record.Get()), "reading a record");
        return record;
    }

    [[nodiscard]] Iterator begin() const { return Iterator(this, 0); }
    [[nodiscard]] Iterator end() const { return Iterator(this, Size()); }

    [[nodiscard]] Accessor& TheAccessor() const { return *accessor_; }

 private:
    ComPtr<Accessor> accessor_;
};

template <class Accessor>
using AccessorGetter = HRESULT (STDMETHODCALLTYPE ITAMURStructureReader::*)(Accessor**);

// A new accessor of that kind.
template <class Accessor>
ComPtr<Accessor> GetAccessor(ITAMURStructureReader& reader, AccessorGetter<Accessor> get)
{
    ComPtr<Accessor> accessor;
    Check((reader.*get)(accessor.Put()), "getting an accessor");
    return accessor;
}

inline auto Materials(ITAMURStructureReader& reader)
{
    return Range<TMRMaterial, ITMRMaterialAccessor, &ITMRMaterialAccessor::GetNbMaterials,
                 &ITMRMaterialAccessor::GetMaterialAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetMaterialAccessor));
}
inline auto Sections(ITAMURStructureReader& reader)
{
    return Range<TMRSectionGeometry, ITMRSectionAccessor, &ITMRSectionAccessor::GetNbSections,
                 &ITMRSectionAccessor::GetSectionAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetSectionAccessor));
}
inline auto Attaches(ITAMURStructureReader& reader)
{
    return Range<TMRAttache, ITMRAttacheAccessor, &ITMRAttacheAccessor::GetNbAttaches,
                 &ITMRAttacheAccessor::GetAttacheAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetAttacheAccessor));
}
inline auto Groupes(ITAMURStructureReader& reader)
{
    return Range<TMRGroupe, ITMRGroupeAccessor, &ITMRGroupeAccessor::GetNbGroupes,
                 &ITMRGroupeAccessor::GetGroupeAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetGroupeAccessor));
}
inline auto Filaires(ITAMURStructureReader& reader)
{
    return Range<TMRFilaire, ITMRFilaireAccessor, &ITMRFilaireAccessor::GetNbFilaires,
                 &ITMRFilaireAccessor::GetFilaireAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetFilaireAccessor));
}
inline auto Surfaciques(ITAMURStructureReader& reader)
{
    return Range<TMRSurfacique, ITMRSurfaciqueAccessor, &ITMRSurfaciqueAccessor::GetNbSurfaciques,
                 &ITMRSurfaciqueAccessor::GetSurfaciqueAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetSurfaciqueAccessor));
}
inline auto Ouvertures(ITAMURStructureReader& reader)
{
    return Range<TMROuverture, ITMROuvertureAccessor, &ITMROuvertureAccessor::GetNbOuvertures,
                 &ITMROuvertureAccessor::GetOuvertureAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetOuvertureAccessor));
}
inline auto Parois(ITAMURStructureReader& reader)
{
    return Range<TMRParoi, ITMRParoiAccessor, &ITMRParoiAccessor::GetNbParois,
                 &ITMRParoiAccessor::GetParoiAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetParoiAccessor));
}
inline auto AppuisPonctuels(ITAMURStructureReader& reader)
{
    return Range<TMRAppuiPonctuel, ITMRAppuiPonctuelAccessor,
                 &ITMRAppuiPonctuelAccessor::GetNbAppui,
                 &ITMRAppuiPonctuelAccessor::GetAppuiAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetAppuiPonctuelAccessor));
}
inline auto AppuisLineaires(ITAMURStructureReader& reader)
{
    return Range<TMRAppuiLineaire, ITMRAppuiLineaireAccessor,
                 &ITMRAppuiLineaireAccessor::GetNbAppui,
                 &ITMRAppuiLineaireAccessor::GetAppuiAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetAppuiLineaireAccessor));
}
inline auto AppuisSurfaciques(ITAMURStructureReader& reader)
{
    return Range<TMRAppuiSurfacique, ITMRAppuiSurfaciqueAccessor,
                 &ITMRAppuiSurfaciqueAccessor::GetNbAppui,
                 &ITMRAppuiSurfaciqueAccessor::GetAppuiAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetAppuiSurfaciqueAccessor));
}
inline auto Cas(ITAMURStructureReader& reader)
{
    return Range<TMRCas, ITMRCasAccessor, &ITMRCasAccessor::GetNbCas,
                 &ITMRCasAccessor::GetCasAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetCasAccessor));
}
inline auto Nodes(ITAMURStructureReader& reader)
{
    return Range<TMRNode, ITMRNodeAccessor, &ITMRNodeAccessor::GetNbNodes,
                 &ITMRNodeAccessor::GetNodeAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetNodeAccessor));
}
inline auto Masses(ITAMURStructureReader& reader)
{
    return Range<TMRMasse, ITMRMasseAccessor, &ITMRMasseAccessor::GetNbMasses,
                 &ITMRMasseAccessor::GetMasseAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetMasseAccessor));
}
inline auto Cables(ITAMURStructureReader& reader)
{
    return Range<TMRCable, ITMRCableAccessor, &ITMRCableAccessor::GetNbCables,
                 &ITMRCableAccessor::GetCableAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetCableAccessor));
}
inline auto Lines(ITAMURStructureReader& reader)
{
    return Range<TMRLine, ITMRLineAideAccessor, &ITMRLineAideAccessor::GetNbLines,
                 &ITMRLineAideAccessor::GetLineAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetLineAideAccessor));
}
inline auto LinesInterieur(ITAMURStructureReader& reader)
{
    return Range<TMRLineInterieur, ITMRLineInterieurAccessor,
                 &ITMRLineInterieurAccessor::GetNbLinesInt,
                 &ITMRLineInterieurAccessor::GetLineIntAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetLineInterieurAccessor));
}
inline auto Deplacements(ITAMURStructureReader& reader)
{
    return Range<TMRDeplacement, ITMRDeplacementAccessor,
                 &ITMRDeplacementAccessor::GetNbDeplacements,
                 &ITMRDeplacementAccessor::GetDeplacementAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetDeplacementAccessor));
}
inline auto SurfacicSections(ITAMURStructureReader& reader)
{
    return Range<TMRSurfacicSection, ITMRSurfacicSectionAccessor,
                 &ITMRSurfacicSectionAccessor::GetNbSurfacicSections,
                 &ITMRSurfacicSectionAccessor::GetSurfacicSectionAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetSurfacicSectionAccessor));
}

// The tables of the load accessor.
inline auto ChargesPonctuelles(ITAMURStructureReader& reader)
{
    return Range<TMRChargePonctuelle, ITMRChargeAccessor,
                 &ITMRChargeAccessor::GetNbChargesPonctuelles,
                 &ITMRChargeAccessor::GetChargePonctuelleAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetChargeAccessor));
}
inline auto ChargesLineaires(ITAMURStructureReader& reader)
{
    return Range<TMRChargeLineaire, ITMRChargeAccessor, &ITMRChargeAccessor::GetNbChargesLineaires,
                 &ITMRChargeAccessor::GetChargeLineaireAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetChargeAccessor));
}
inline auto ChargesSurfaciques(ITAMURStructureReader& reader)
{
    return Range<TMRChargeSurfacique, ITMRChargeAccessor,
                 &ITMRChargeAccessor::GetNbChargesSurfaciques,
                 &ITMRChargeAccessor::GetChargeSurfaciqueAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetChargeAccessor));
}
inline auto ChargesPoidsPropre(ITAMURStructureReader& reader)
{
    return Range<TMRChargePoidsPropre, ITMRChargeAccessor,
                 &ITMRChargeAccessor::GetNbChargesPoidsPropre,
                 &ITMRChargeAccessor::GetChargePoidsPropreAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetChargeAccessor));
}
inline auto ChargesThermiques(ITAMURStructureReader& reader)
{
    return Range<TMRChargeThermique, ITMRChargeAccessor,
                 &ITMRChargeAccessor::GetNbChargesThermiques,
                 &ITMRChargeAccessor::GetChargeThermiqueAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetChargeAccessor));
}
inline auto ChargesSismiques(ITAMURStructureReader& reader)
{
    return Range<TMRChargeSismique, ITMRChargeAccessor, &ITMRChargeAccessor::GetNbChargesSismiques,
                 &ITMRChargeAccessor::GetChargeSismiqueAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetChargeAccessor));
}
inline auto Combinaisons(ITAMURStructureReader& reader)
{
    return Range<TMRCombinaison, ITMRChargeAccessor, &ITMRChargeAccessor::GetNbCombinaisons,
                 &ITMRChargeAccessor::GetCombinaisonAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetChargeAccessor));
}
inline auto Enveloppes(ITAMURStructureReader& reader)
{
    return Range<TMREnveloppe, ITMRChargeAccessor, &ITMRChargeAccessor::GetNbEnveloppes,
                 &ITMRChargeAccessor::GetEnveloppeAtRank>(
        GetAccessor(reader, &ITAMURStructureReader::GetChargeAccessor));
}

}  // namespace tamur
