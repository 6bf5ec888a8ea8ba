// Fields of records in the words of engineers. Those that are not here are shown by their published names.
import type { Language } from './index';

const kNames: Record<string, readonly [en: string, fr: string]> = {
    identifier: ['Number', 'Numéro'], lIdentifier: ['Number', 'Numéro'], Num: ['Number', 'Numéro'], iNumCas: ['Case', 'Cas'],
    NumCas: ['Load case', 'Cas de charge'], line: ['Line', 'Ligne'], 'ElemLabels.nbLabels': ['Number of labels', 'Nombre d’étiquettes'],
    'ElemLabels.tabLabels': ['Label', 'Étiquette'], ElementType: ['Type', 'Type'], GroupNumber: ['Group', 'Groupe'],
    ErrorMessage: ['Remarks', 'Remarques'], MeshStep: ['Mesh step', 'Pas de maillage'], RealLength: ['Length (whole)', 'Longueur (entière)'],
    CogPosition: ['Centre of gravity', 'Centre de gravité'], Angle: ['Angle (°)', 'Angle (°)'],
    OrientationNode: ['Orientation node', 'Nœud d’orientation'], NdOri: ['Orientation node', 'Nœud d’orientation'],
    Excentration: ['Offset', 'Excentrement'], startPoint: ['Start', 'Début'], endPoint: ['End', 'Fin'],
    StartSection: ['Section at start', 'Section au début'], EndSection: ['Section at end', 'Section à la fin'],
    StartConnection: ['Release at start', 'Attache au début'], EndConnection: ['Release at end', 'Attache à la fin'],
    FilaireMaterial: ['Material', 'Matériau'], SurfaciqueMaterial: ['Material', 'Matériau'],
    'Surface.nbPoints': ['Number of corners', 'Nombre de sommets'], 'Surface.tabPoints': ['Corners', 'Sommets'],
    'Geometrie.nbPoints': ['Number of corners', 'Nombre de sommets'], 'Geometrie.tabPoints': ['Corners', 'Sommets'],
    Geometrie: ['Place', 'Position'], 'Geometrie.start': ['Start', 'Début'], 'Geometrie.end': ['End', 'Fin'],
    PenteX: ['Slope x', 'Pente x'], PenteY: ['Slope y', 'Pente y'], Thickness: ['Thickness (m)', 'Épaisseur (m)'],
    MeshType: ['Mesh', 'Maillage'], NbXMesh: ['Divisions x', 'Divisions x'], NbYMesh: ['Divisions y', 'Divisions y'],
    Raideurs: ['Stiffnesses', 'Raideurs'], Amortissements: ['Dampings', 'Amortissements'], condition: ['Condition', 'Condition'],
    Repere: ['Frame', 'Repère'], intensityDebut: ['Intensity at start', 'Intensité au début'],
    intensityFin: ['Intensity at end', 'Intensité à la fin'], intensiteI: ['Intensity 1', 'Intensité 1'],
    intensiteJ: ['Intensity 2', 'Intensité 2'], intensiteK: ['Intensity 3', 'Intensité 3'], bar: ['On bar', 'Sur le filaire'],
    surface: ['In surface', 'Surfacique'], blocage: ['Fixity code', 'Code de blocage'],
    MaterialName: ['Name', 'Nom'], SectionLib: ['Name', 'Nom'], AttacheLib: ['Name', 'Nom'], Titre: ['Title', 'Titre'],
    E: ['Modulus E (N/m²)', 'Module E (N/m²)'], nu: ['Poisson ν', 'Poisson ν'], d: ['Weight (N/m³)', 'Poids (N/m³)'],
    alpha: ['Expansion α (1/°C)', 'Dilatation α (1/°C)'], amortissement: ['Damping', 'Amortissement'],
    Sx: ['Area (m²)', 'Aire (m²)'], Sy: ['Shear area y', 'Aire réduite y'], Sz: ['Shear area z', 'Aire réduite z'],
    Ix: ['I x', 'I x'], Iy: ['I y', 'I y'], Iz: ['I z', 'I z'],
    'epureSec.Code': ['Outline', 'Épure'], 'epureSec.nbPoints': ['Outline points', 'Points de l’épure'],
    'epureSec.pTabPoints': ['Outline coordinates', 'Coordonnées de l’épure'], 'epureSec.dfRadius': ['Radius', 'Rayon'],
    Rotules: ['Released', 'Libère'], Geom: ['Geometry', 'Géométrie'], Def: ['Definition', 'Définition'],
    Elem: ['Gathers kind', 'Regroupe la nature'], TypEl: ['Type code', 'Code du type'], TypeElementName: ['Type', 'Type'],
    Affiche: ['Displayed', 'Affiché'], Type: ['Type', 'Type'], iNbCmb: ['Number of cases', 'Nombre de cas'],
    pNumCas: ['Cases', 'Cas'], pCoeff: ['Factors', 'Coefficients'], iNbCases: ['Number of cases', 'Nombre de cas'],
    pCases: ['Cases', 'Cas'], DeltaT: ['Temperature (°C)', 'Température (°C)'], Gy: ['Gradient y', 'Gradient y'],
    Gz: ['Gradient z', 'Gradient z'], ElemGrp: ['Kind of the group', 'Nature du groupe'], NumGrp: ['Place of the group', 'Rang du groupe'],
    iSensPortee: ['Direction of span', 'Sens de portée'], bNeige: ['Snow', 'Neige'], bAccumulation: ['Accumulation', 'Accumulation'],
    iModeAccumulation: ['Mode of accumulation', 'Mode d’accumulation'], bVent: ['Wind', 'Vent'], iVentType: ['Type of wind', 'Type de vent'],
    dPermeabilite: ['Permeability', 'Perméabilité'], iStatutVent: ['Zones: status', 'Zones : statut'], dCe: ['Zones: Ce', 'Zones : Ce'],
    dCiSupression: ['Zones: Ci overpressure', 'Zones : Ci surpression'], dCiDepression: ['Zones: Ci depression', 'Zones : Ci dépression'],
    Couche: ['Layer', 'Couche'], iMaillage: ['Meshing', 'Maillage'], NrElements: ['Elements', 'Éléments'], Spacing: ['Spacing', 'Espacement'],
};

export function fieldName(language: Language, name: string): string {
    return kNames[name]?.[language === 'fr' ? 1 : 0] ?? name;
}
