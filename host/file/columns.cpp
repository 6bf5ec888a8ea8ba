#include "host/file/columns.h"

#include <array>

namespace tamur::host {
namespace {

constexpr Column Integer(Name name, Role role = Role::kValue)
{
    return {name, ColumnType::kInteger, role};
}
constexpr Column Unsigned(Name name, Role role = Role::kValue)
{
    return {name, ColumnType::kUnsigned, role};
}
constexpr Column Real(Name name, Role role = Role::kValue)
{
    return {name, ColumnType::kReal, role};
}
constexpr Column Word(Name name, Role role = Role::kValue)
{
    return {name, ColumnType::kWord, role};
}
constexpr Column Flag(Name name, Role role = Role::kValue)
{
    return {name, ColumnType::kCharacter, role};
}
constexpr Column CodeUpTo(std::int16_t largest, Name name)
{
    return {name, ColumnType::kInteger, Role::kValue, 1, largest};
}

constexpr Name kUnused = {"an unused column", "une colonne non utilisée"};
constexpr Name kGroupName = {"group", "groupe"};
constexpr Name kCaseName = {"load case", "cas"};
constexpr Name kFrame = {"frame", "repère"};
constexpr Name kTitle = {"title", "titre"};
constexpr Name kNameName = {"name", "nom"};
constexpr Name kMeshX = {"divisions in x", "divisions en x"};
constexpr Name kMeshY = {"divisions in y", "divisions en y"};

constexpr Column kGroupColumns[] = {
    Integer({"kind of elements", "genre d'éléments"}, Role::kLowByte),
    Integer({"number", "numéro"}, Role::kIdentifier), Integer({"type", "type"}, Role::kLowByte),
    Word(kTitle), Word({"displayed", "affichage"}, Role::kOptional)};
constexpr Column kMaterialColumns[] = {Word(kNameName),
                                       Real({"modulus of elasticity", "module d'élasticité"}),
                                       Real({"Poisson's ratio", "coefficient de Poisson"}),
                                       Real({"unit weight", "poids volumique"}),
                                       Real({"thermal expansion", "coefficient de dilatation"}),
                                       Real({"damping ratio", "amortissement"})};
constexpr Column kReleaseColumns[] = {
    Word(kNameName), Integer({"released rotations", "rotations libérées"}, Role::kLowByte),
    Word(kTitle, Role::kOptional), Word({"geometry", "géométrie"}, Role::kOptional),
    Word({"definition", "définition"}, Role::kOptional)};
constexpr Column kCaseColumns[] = {Integer({"number", "numéro"}, Role::kIdentifier), Word(kTitle),
                                   Integer({"type", "type"}, Role::kLowByte),
                                   Word({"code", "code"}), Integer(kUnused, Role::kPassedOver)};
constexpr Column kSectionColumns[] = {
    Word(kNameName),
    Real({"area Sx", "aire Sx"}),
    Real({"shear area Sy", "aire de cisaillement Sy"}),
    Real({"shear area Sz", "aire de cisaillement Sz"}),
    Real({"torsion inertia Ix", "inertie de torsion Ix"}),
    Real({"inertia Iy", "inertie Iy"}),
    Real({"inertia Iz", "inertie Iz"}),
    Real({"fibre constant Vx", "module Vx"}),
    Real({"fibre constant V1y", "module V1y"}),
    Real({"fibre constant V1z", "module V1z"}),
    Real({"fibre constant V2y", "module V2y"}),
    Real({"fibre constant V2z", "module V2z"}),
    Integer({"number of outline points", "nombre de points du contour"}, Role::kListCount),
    Flag({"outline code", "code du contour"}, Role::kListCode)};
constexpr Column kOutlinePoint[] = {Real({"x of the outline", "x du contour"}),
                                    Real({"y of the outline", "y du contour"})};
constexpr Column kOutlineThird[] = {
    Real({"third value of the outline", "troisième valeur du contour"})};
constexpr Column kRadius[] = {Real({"radius", "rayon"}, Role::kOptional)};

constexpr Column kTerm[] = {Integer({"combined case", "cas combiné"}, Role::kCase),
                            Real({"factor", "coefficient"})};
constexpr Column kAfterMarker[] = {Real(kUnused, Role::kPassedOver)};

constexpr Column kModalColumns[] = {
    Integer({"number of modes", "nombre de modes"}, Role::kListCount),
    Real({"percentage of mass in x", "pourcentage de masse en x"}),
    Real({"percentage of mass in y", "pourcentage de masse en y"}),
    Real({"percentage of mass in z", "pourcentage de masse en z"}),
    Integer({"choice of masses", "choix des masses"})};
constexpr Column kModalCase[] = {Integer({"case of the masses", "cas des masses"}),
                                 Real({"factor of the masses", "coefficient des masses"})};
constexpr Column kModalEnd[] = {Integer({"computed dampings", "amortissements calculés"}),
                                Word(kUnused), Integer({"method", "méthode"}),
                                Flag({"residual mode", "mode résiduel"}), Word(kUnused)};
constexpr Column kDamping[] = {Real({"damping", "amortissement"})};

constexpr Column kSeismicColumns[] = {
    Flag({"direction X", "direction X"}),
    Flag({"direction Y", "direction Y"}),
    Flag({"direction Z", "direction Z"}),
    Word(kUnused),
    Real(kUnused),
    Real({"reduction of displacements", "réduction des déplacements"}),
    Real({"reduction of forces", "réduction des efforts"}),
    Flag({"computed reduction", "réduction calculée"}),
    Integer({"choice of sign", "choix du signe"}),
    Integer({"mode", "mode"}),
    Real(kUnused)};
constexpr Column kSpectrum[] = {Real({"period", "période"}),
                                Real({"acceleration", "accélération"})};
constexpr Column kAfterSpectrum[] = {Word(kUnused)};
constexpr Column kSeismicEnd[] = {Integer({"class of work", "classe d'ouvrage"}),
                                  Real({"ductility", "ductilité"}),
                                  Real({"layer of soil", "couche de sol"}),
                                  Word(kUnused),
                                  Word(kUnused),
                                  Integer({"site", "site"}),
                                  Flag({"risk", "risque"}),
                                  Word(kUnused),
                                  Integer({"kind of soil", "nature du sol"}),
                                  Real({"topography", "topographie"}),
                                  Integer({"zone", "zone"}),
                                  Flag({"limited dampings", "amortissements limités"})};

constexpr Column kEnvelopeColumns[] = {
    Integer({"quantity", "grandeur"}),
    Integer({"envelope N", "enveloppe N"}),
    Integer({"envelope A", "enveloppe A"}),
    Integer({"envelope F", "enveloppe F"}),
    Integer({"envelope S", "enveloppe S"}),
    Integer({"value N", "valeur N"}),
    Integer({"value A", "valeur A"}),
    Integer({"value F", "valeur F"}),
    Integer({"value S", "valeur S"}),
    Flag({"kept cases", "cas conservés"}),
    Integer({"number of cases", "nombre de cas"}, Role::kListCount)};
constexpr Column kEnvelopedCase[] = {Integer({"enveloped case", "cas enveloppé"}, Role::kCase)};

constexpr Column kElementHead[] = {
    Unsigned({"identifier", "identifiant"}, Role::kIdentifier),
    {kUnused, ColumnType::kUnsigned16},
    Integer({"number of points", "nombre de points"}, Role::kPointCount),
    Integer({"number of labels", "nombre d'étiquettes"}, Role::kLabelCount)};
constexpr Column kPoint[] = {Real({"x", "x"}), Real({"y", "y"}), Real({"z", "z"})};
constexpr Column kLabel[] = {Word({"label", "étiquette"})};
constexpr Column kAfterLabels[] = {Integer(kUnused), Unsigned(kUnused), Unsigned(kUnused)};

constexpr Column kNodeColumns[] = {Integer({"fixity", "blocage"}, Role::kLowByte)};
constexpr Column kBarColumns[] = {
    Integer(kGroupName),
    CodeUpTo(5, {"type", "type"}),
    Integer({"orientation node", "nœud d'orientation"}),
    Integer({"angle", "angle"}),
    Integer({"mesh step", "pas de maillage"}),
    Integer({"material", "matériau"}, Role::kMaterial),
    Integer({"section at the start", "section à l'origine"}, Role::kSection),
    Integer({"section at the end", "section à l'extrémité"}, Role::kSection),
    Integer({"release at the start", "attache à l'origine"}, Role::kRelease),
    Integer({"release at the end", "attache à l'extrémité"}, Role::kRelease),
    CodeUpTo(9, {"offset", "excentrement"})};
// From version 12.2A on.
constexpr Column kBarEnd[] = {Real(kUnused, Role::kPassedOver)};
constexpr Column kSurfaceColumns[] = {Integer(kGroupName),
                                      CodeUpTo(7, {"type", "type"}),
                                      Integer({"material", "matériau"}, Role::kMaterial),
                                      CodeUpTo(4, {"mesh", "maillage"}),
                                      Integer(kMeshX),
                                      Integer(kMeshY),
                                      Real({"thickness", "épaisseur"}),
                                      Real({"slope in x", "pente en x"}),
                                      Real({"slope in y", "pente en y"})};

constexpr Column kCondition = {{"condition", "liaison"}, ColumnType::kInteger, Role::kValue, 0, 3};
constexpr Column kSupportAngle = Integer({"angle", "angle"});
constexpr Column kPointSupportColumns[] = {Integer(kGroupName), kCondition,
                                           Integer({"orientation node", "nœud d'orientation"}),
                                           kSupportAngle};
constexpr Column kLineSupportColumns[] = {Integer(kGroupName), kCondition, Integer(kUnused),
                                          kSupportAngle};
constexpr Column kSurfaceSupportColumns[] = {Integer(kGroupName), kCondition};
constexpr Column kStiffness[] = {Real({"stiffness", "raideur"})};
constexpr Column kSupportDamping[] = {Real({"damping", "amortissement"})};
constexpr Column kArea[] = {Real({"area", "surface"})};

constexpr Column kLoadColumns[] = {Integer(kCaseName, Role::kCase), Integer(kFrame)};
constexpr Column kEndIntensities[] = {Real({"intensity at the start", "intensité à l'origine"}),
                                      Real({"intensity at the end", "intensité à l'extrémité"})};
constexpr Column kCornerIntensity[] = {Real({"intensity at a corner", "intensité à un sommet"})};
constexpr Column kForce[] = {Real({"force Fx", "force Fx"}), Real({"force Fy", "force Fy"}),
                             Real({"force Fz", "force Fz"})};
constexpr Column kMoment[] = {Real({"moment Mx", "moment Mx"}), Real({"moment My", "moment My"}),
                              Real({"moment Mz", "moment Mz"})};

constexpr Column kGroupKind = Integer({"kind of the group", "genre du groupe"});
constexpr Column kGroupNumber = Integer({"number of the group", "numéro du groupe"});
constexpr Column kSelfWeightColumns[] = {Integer(kCaseName, Role::kCase),
                                         Real({"component dX", "composante dX"}),
                                         Real({"component dY", "composante dY"}),
                                         Real({"component dZ", "composante dZ"}),
                                         kGroupKind,
                                         kGroupNumber};
constexpr Column kThermalColumns[] = {Integer(kCaseName, Role::kCase),
                                      Real({"temperature", "température"}),
                                      Real({"gradient Gy", "gradient Gy"}),
                                      Real({"gradient Gz", "gradient Gz"}),
                                      kGroupKind,
                                      kGroupNumber};

constexpr Column kMassColumns[] = {
    Real({"mass Mx", "masse Mx"}),      Real({"mass My", "masse My"}),
    Real({"mass Mz", "masse Mz"}),      Real({"inertia Ix", "inertie Ix"}),
    Real({"inertia Iy", "inertie Iy"}), Real({"inertia Iz", "inertie Iz"})};
constexpr Column kDisplacementColumns[] = {Integer(kGroupName),
                                           Real({"translation dX", "translation dX"}),
                                           Real({"translation dY", "translation dY"}),
                                           Real({"translation dZ", "translation dZ"}),
                                           Real({"rotation Rx", "rotation Rx"}),
                                           Real({"rotation Ry", "rotation Ry"}),
                                           Real({"rotation Rz", "rotation Rz"})};
constexpr Column kCutColumns[] = {Integer({"layer", "couche"})};
constexpr Column kInnerLineColumns[] = {Integer({"meshing", "maillage"})};
constexpr Column kOpeningColumns[] = {Integer(kMeshX), Integer(kMeshY)};
constexpr Column kWallColumns[] = {Integer({"direction of the span", "sens de portée"}),
                                   Flag({"snow", "neige"}),
                                   Flag({"accumulation of snow", "accumulation de neige"}),
                                   Integer({"mode of accumulation", "mode d'accumulation"}),
                                   Real({"coefficient of length", "coefficient de longueur"}),
                                   Real({"normal coefficient a", "coefficient normal a"}),
                                   Real({"normal coefficient b", "coefficient normal b"}),
                                   Real({"extreme coefficient a", "coefficient extrême a"}),
                                   Real({"extreme coefficient b", "coefficient extrême b"}),
                                   Flag({"wind", "vent"}),
                                   Integer({"type of wind", "type de vent"}),
                                   Real({"permeability", "perméabilité"})};
constexpr Column kWindZone[] = {Integer({"status of a wind zone", "statut d'une zone de vent"}),
                                Real({"external coefficient", "coefficient extérieur"}),
                                Real({"coefficient in overpressure", "coefficient en surpression"}),
                                Real({"coefficient in depression", "coefficient en dépression"})};
constexpr Column kSpanCoefficient[] = {Real({"span coefficient", "coefficient de portée"})};
constexpr Column kCableColumns[] = {Integer(kGroupName), Integer(kUnused),
                                    Integer(kCaseName, Role::kCase), Integer(kFrame)};
constexpr Column kConstructionLineColumns[] = {
    Integer(kGroupName),
    Integer(kUnused),
    Integer({"number of elements", "nombre d'éléments"}),
    Real({"size of the elements", "taille des éléments"}),
    Integer({"mode of spacing", "mode d'espacement"}),
    Real({"factor of spacing", "coefficient d'espacement"})};

constexpr ColumnGroup kHead = {kElementHead};
constexpr ColumnGroup kPoints = {kPoint, Times::kEachPoint};
constexpr ColumnGroup kLabels = {kLabel, Times::kEachLabel};
constexpr ColumnGroup kRest = {kAfterLabels};

// An element: what all have, and its own columns.
template <class... Groups>
constexpr auto Element(const Groups&... groups)
{
    return std::array<ColumnGroup, 4 + sizeof...(groups)>{kHead, kPoints, kLabels, kRest,
                                                          ColumnGroup(groups)...};
}

constexpr ColumnGroup SixTimes(std::span<const Column> columns)
{
    return {columns, Times::kOnce, 6};
}
constexpr ColumnGroup Once(std::span<const Column> columns)
{
    return {columns};
}

constexpr ColumnGroup kGroups[] = {{kGroupColumns}};
constexpr ColumnGroup kMaterials[] = {{kMaterialColumns}};
constexpr ColumnGroup kReleases[] = {{kReleaseColumns}};
constexpr ColumnGroup kCases[] = {{kCaseColumns}};
constexpr ColumnGroup kSections[] = {{kSectionColumns},
                                     {kOutlinePoint, Times::kEachItem},
                                     {kOutlineThird, Times::kEachItemOfS},
                                     {kRadius, Times::kRadius}};
constexpr ColumnGroup kCombinations[] = {{kTerm, Times::kUpToMarker}, {kAfterMarker}};
constexpr ColumnGroup kModes[] = {
    {kModalColumns}, {kModalCase, Times::kOnce, 8}, {kModalEnd}, {kDamping, Times::kEachItem}};
constexpr ColumnGroup kSeismic[] = {{kSeismicColumns},
                                    {kSpectrum, Times::kUpToInfinity},
                                    {kAfterSpectrum, Times::kOnce, 39},
                                    {kSeismicEnd}};
constexpr ColumnGroup kEnvelopes[] = {{kEnvelopeColumns}, {kEnvelopedCase, Times::kEachItem}};

constexpr auto kNodes = Element(Once(kNodeColumns));
constexpr auto kBars = Element(Once(kBarColumns), ColumnGroup{kBarEnd, Times::kOnce, 5});
constexpr auto kSurfaces = Element(Once(kSurfaceColumns));
constexpr auto kPointSupports = Element(Once(kPointSupportColumns), SixTimes(kStiffness),
                                        SixTimes(kSupportDamping), Once(kArea));
constexpr auto kLineSupports = Element(Once(kLineSupportColumns), SixTimes(kStiffness),
                                       SixTimes(kSupportDamping), Once(kArea));
constexpr auto kSurfaceSupports =
    Element(Once(kSurfaceSupportColumns), SixTimes(kStiffness), SixTimes(kSupportDamping));
constexpr auto kPointLoads = Element(Once(kLoadColumns), Once(kForce), Once(kMoment));
constexpr auto kLineLoads =
    Element(Once(kLoadColumns), Once(kEndIntensities), Once(kForce), Once(kMoment));
constexpr auto kSurfaceLoads =
    Element(Once(kLoadColumns), ColumnGroup{kCornerIntensity, Times::kOnce, 3}, Once(kForce));
constexpr auto kSelfWeights = Element(Once(kSelfWeightColumns));
constexpr auto kThermalLoads = Element(Once(kThermalColumns));
constexpr auto kMasses = Element(Once(kMassColumns));
constexpr auto kDisplacements = Element(Once(kDisplacementColumns));
constexpr auto kCuts = Element(Once(kCutColumns));
constexpr auto kInnerLines = Element(Once(kInnerLineColumns));
constexpr auto kOpenings = Element(Once(kOpeningColumns));
constexpr auto kWalls = Element(Once(kWallColumns), ColumnGroup{kWindZone, Times::kOnce, 4},
                                ColumnGroup{kSpanCoefficient, Times::kEachPoint});
constexpr auto kCables = Element(Once(kCableColumns));
constexpr auto kConstructionLines = Element(Once(kConstructionLineColumns));

constexpr bool kScanned = true;
constexpr bool kStreamed = false;

constexpr std::array<Layout, kKindCount> kLayouts = {{
    {kStreamed, {}},
    {kScanned, kMaterials},
    {kStreamed, kSections},
    {kScanned, kReleases},
    {kScanned, kGroups},
    {kScanned, kCases},
    {kStreamed, kCombinations},
    {kStreamed, kModes},
    {kStreamed, kSeismic},
    {kStreamed, kEnvelopes},
    {kStreamed, kNodes},
    {kStreamed, kBars},
    {kStreamed, kSurfaces},
    {kStreamed, kPointSupports},
    {kStreamed, kPointLoads},
    {kStreamed, kLineLoads},
    {kStreamed, kSurfaceLoads},
    {kStreamed, kSelfWeights},
    {kStreamed, kMasses},
    {kStreamed, kLineSupports},
    {kStreamed, kSurfaceSupports},
    {kStreamed, kDisplacements},
    {kStreamed, kThermalLoads},
    {kStreamed, kCuts},
    {kStreamed, kInnerLines},
    {kStreamed, kOpenings},
    {kStreamed, kWalls},
    {kStreamed, kCables},
    {kStreamed, kConstructionLines},
}};

}  // namespace

const Layout& LayoutOf(Kind kind)
{
    return kLayouts[static_cast<std::size_t>(kind)];
}

}  // namespace tamur::host
