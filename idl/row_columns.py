"""What the columns of the tables are called where rows are handed over whole, and their units.

The types come from the contract. A column is
    (name, path in the contract's record, unit, what it is)
with a path like "Geometrie.start". A path that begins with "=" is no field of the record: the
column is of the type after it, and host/rows fills it. Every field of a record must be in a column;
the number of a list is in the list, and has a column of its own where it may be other than its
length.
"""
from dataclasses import dataclass


@dataclass(frozen=True)
class TableNames:
    number: int     # in the C interface: never used for another table
    table: str      # in the contract; for what is no table of it, what the rows are
    record: str     # in the contract; empty where it has none
    name: str       # of the attribute in Python
    row: str        # of the row in C, and with an s the class in Python
    columns: list[tuple[str, str, str, str]]
    base: str = "Table"  # of its class in Python


IDENTIFIER = ("identifier", "identifier", "", "number in the file")
GROUP = ("group", "GroupNumber", "", "number of the group")
LABELS = ("labels", "ElemLabels", "", "names that the user gave")
POINT = ("position", "Geometrie", "m", "where it is")
START = ("start", "Geometrie.start", "m", "one end")
END = ("end", "Geometrie.end", "m", "the other end")
AREA = ("area", "=double", "m²", "of the outline, without regard to openings")
CASE = ("load_case", "NumCas", "", "number of the load case")
FRAME = ("frame", "Repere", "", "1 global, 2 local, 3 projected")
FORCE = [("fx", "Fx", "N", "force along x"), ("fy", "Fy", "N", "force along y"),
         ("fz", "Fz", "N", "force along z")]
MOMENT = [("mx", "Mx", "N·m", "moment about x"), ("my", "My", "N·m", "moment about y"),
          ("mz", "Mz", "N·m", "moment about z")]
DIRECTION = [("fx", "Fx", "", "direction of the force: multiplies the intensity"),
             ("fy", "Fy", "", "the same along y"), ("fz", "Fz", "", "the same along z")]
TURNING = [("mx", "Mx", "", "axis of the moment: multiplies the intensity"),
           ("my", "My", "", "the same about y"), ("mz", "Mz", "", "the same about z")]
ELEMENT_TYPE = ("type", "ElementType", "", "name of its type")
BLANK_TYPE = ("type", "ElementType", "", "blanks: the file says none")
SUPPORT = [
    IDENTIFIER, GROUP, LABELS,
    ("type", "ElementType", "", "kind and condition: rigid, elastic, stop or none, in French"),
    ("stiffness", "Raideurs", "N/m, N·m", "along x, y, z and about x, y, z"),
    ("damping", "Amortissements", "", "along x, y, z and about x, y, z"),
]
PLACED_SUPPORT = SUPPORT + [
    ("area", "Surface", "m²", "area that it holds"),
    ("angle", "Angle", "°", "of its frame"),
]
GROUP_LOAD = [
    IDENTIFIER, ("group", "GroupNumber", "", "never written: 0"),
    ("type", "ElementType", "", "never written: no text"), CASE,
    ("frame", "Repere", "", "not in the file: 0"),
]
GROUP_OF_LOAD = [
    ("group_elements", "ElemGrp", "", "kind of elements that the loaded group gathers"),
    ("loaded_group", "NumGrp", "",
     "place from 1 in `groups` of the loaded group; the number in the file when there is none"),
]

TABLES = [
    TableNames(1, "Materials", "TMRMaterial", "materials", "Material", [
        ("name", "MaterialName", "", "name"),
        ("modulus", "E", "N/m²", "modulus of elasticity"),
        ("poisson", "nu", "", "Poisson's ratio"),
        ("unit_weight", "d", "N/m³", "weight of a volume"),
        ("expansion", "alpha", "1/°C", "coefficient of thermal expansion"),
        ("damping", "amortissement", "", "damping ratio"),
    ]),
    TableNames(2, "Sections", "TMRSectionGeometry", "sections", "Section", [
        ("name", "SectionLib", "", "name; of T, I and H sections with their dimensions"),
        ("area", "Sx", "m²", "cross-section"),
        ("shear_area_y", "Sy", "m²", "in shear along y"),
        ("shear_area_z", "Sz", "m²", "in shear along z"),
        ("inertia_x", "Ix", "m⁴", "in torsion"),
        ("inertia_y", "Iy", "m⁴", "about y"),
        ("inertia_z", "Iz", "m⁴", "about z"),
        ("modulus_x", "Vx", "m³", "section modulus in torsion"),
        ("modulus_1y", "V1y", "m³", "section modulus about y on one side"),
        ("modulus_1z", "V1z", "m³", "section modulus about z on one side"),
        ("modulus_2y", "V2y", "m³", "section modulus about y on the other side"),
        ("modulus_2z", "V2z", "m³", "section modulus about z on the other side"),
        ("outline_code", "epureSec.Code", "", "S, C, F or another character; its number"),
        ("outline_points", "epureSec.nbPoints", "", "number of points as written, may be negative"),
        ("outline", "epureSec.pTabPoints", "m",
         "coordinates of the points in turn: three each with code S, else two"),
        ("radius", "epureSec.dfRadius", "m", "of outlines with code C and F"),
    ], base="SectionTable"),
    TableNames(3, "Attaches", "TMRAttache", "releases", "Release", [
        ("name", "AttacheLib", "", "name"),
        ("released", "Rotules", "",
         "sum of 1, 2, 4 for rotations about x, y, z; 8 relaxation along x"),
        ("title", "Titre", "", "title"),
        ("geometry", "Geom", "", "a word of the product"),
        ("definition", "Def", "", "a word of the product"),
    ]),
    TableNames(4, "Groupes", "TMRGroupe", "groups", "Group", [
        ("elements", "Elem", "", "kind that it gathers: 1 point supports, 2 bars, 3 surfaces, "
                                 "4 surface supports, 5 line supports"),
        ("number", "Num", "", "number within its kind"),
        ("title", "Titre", "", "title; \"-\" when blank"),
        ("type_code", "TypEl", "", "type within the kind"),
        ("type", "TypeElementName", "", "name of that type"),
        ("shown", "Affiche", "", "1 when displayed, else 0"),
    ]),
    TableNames(5, "Filaires", "TMRFilaire", "bars", "Bar", [
        IDENTIFIER, GROUP,
        ("type", "ElementType", "", "Barre, Poutre, PoutreV, PoutreC or Tirant"),
        ("material", "FilaireMaterial", "", "place in `materials`"),
        ("start_section", "StartSection", "", "place in `sections`"),
        ("end_section", "EndSection", "", "place in `sections`"),
        ("start_release", "StartConnection", "", "place in `releases`"),
        ("end_release", "EndConnection", "", "place in `releases`"),
        ("start", "startPoint", "m", "one end"),
        ("end", "endPoint", "m", "the other end"),
        ("length", "=double", "m", "from end to end"),
        LABELS,
        ("angle", "Angle", "°", "about its axis"),
        ("orientation_node", "OrientationNode", "", "identifier of a node, 0 for none"),
        ("offset", "Excentration", "",
         "where its axis is on the section: 0 to 2 left, 3 to 5 centre, 6 to 8 right; each time "
         "top, centre, bottom"),
        ("mesh_step", "MeshStep", "", "steps of the mesh"),
        ("whole_length", "RealLength", "m", "length without its decimals, as the contract has it"),
        ("axis_position", "CogPosition", "", "always CentreCentre"),
        ("remark", "ErrorMessage", "", "remark of the import; no text when there is none"),
    ]),
    TableNames(6, "Surfaciques", "TMRSurfacique", "surfaces", "Surface", [
        IDENTIFIER, GROUP, LABELS, ELEMENT_TYPE,
        ("material", "SurfaciqueMaterial", "", "place in `materials`"),
        ("outline", "Surface", "m", "its corners"),
        ("slope_x", "PenteX", "", "slope along x"),
        ("slope_y", "PenteY", "", "slope along y"),
        ("thickness", "Thickness", "m", "thickness"),
        ("mesh_type", "MeshType", "", "0 automatic, 1 free, 2 imposed, 3 none"),
        ("mesh_x", "NbXMesh", "", "divisions along x"),
        ("mesh_y", "NbYMesh", "", "divisions along y"),
        AREA,
    ]),
    TableNames(7, "Ouvertures", "TMROuverture", "openings", "Opening", [
        IDENTIFIER, LABELS,
        ("outline", "Surface", "m", "its corners"),
        ("mesh_x", "NbXMesh", "", "divisions along x"),
        ("mesh_y", "NbYMesh", "", "divisions along y"),
        AREA,
    ]),
    TableNames(8, "Parois", "TMRParoi", "walls", "Wall", [
        IDENTIFIER,
        ("outline", "Surface", "m", "its corners"),
        LABELS,
        ("span_direction", "iSensPortee", "", "direction in which it spans"),
        ("snow", "bNeige", "", "1 when snow applies, else 0"),
        ("accumulation", "bAccumulation", "", "1 when snow accumulates, else 0"),
        ("accumulation_mode", "iModeAccumulation", "", "how it accumulates"),
        ("length_coefficient", "dCoefLongueur", "", "coefficient of the length"),
        ("normal_a", "dCoefPaNormale", "", "coefficient Pa of normal snow"),
        ("normal_b", "dCoefPbNormale", "", "coefficient Pb of normal snow"),
        ("extreme_a", "dCoefPaExtreme", "", "coefficient Pa of extreme snow"),
        ("extreme_b", "dCoefPbExtreme", "", "coefficient Pb of extreme snow"),
        ("wind", "bVent", "", "1 when wind applies, else 0"),
        ("wind_type", "iVentType", "", "on the scale of current versions"),
        ("permeability", "dPermeabilite", "", "permeability"),
        ("zone_status", "iStatutVent", "", "of the four wind zones"),
        ("zone_external", "dCe", "", "Ce of the four wind zones"),
        ("zone_overpressure", "dCiSupression", "", "Ci in overpressure of the four wind zones"),
        ("zone_depression", "dCiDepression", "", "Ci in depression of the four wind zones"),
        ("span_coefficients", "portCoef", "", "one for each corner"),
        AREA,
    ]),
    TableNames(9, "AppuisPonctuels", "TMRAppuiPonctuel", "point_supports", "PointSupport",
               PLACED_SUPPORT + [
                   ("orientation_node", "NdOri", "", "identifier of a node, 0 for none"), POINT]),
    TableNames(10, "AppuisLineaires", "TMRAppuiLineaire", "line_supports", "LineSupport",
               PLACED_SUPPORT + [
                   ("frame", "Repere", "", "not in the file: 0, global"), START, END]),
    TableNames(11, "AppuisSurfaciques", "TMRAppuiSurfacique", "surface_supports", "SurfaceSupport",
               SUPPORT + [("outline", "Geometrie", "m", "its corners"), AREA]),
    TableNames(12, "Cas", "TMRCas", "cases", "Case", [
        ("number", "Num", "", "number"),
        ("type", "Type", "", "1 static, 2 combination, 3 modal, 4 seismic, 9 envelope, 12 static "
                             "with self-weight, 13 static with thermal loads"),
        ("title", "Titre", "", "title"),
        ("code", "Code", "", "nature of the loads, as the product writes it"),
    ]),
    TableNames(13, "ChargesPonctuelles", "TMRChargePonctuelle", "point_loads", "PointLoad",
               [IDENTIFIER, CASE, FRAME] + FORCE + MOMENT + [POINT]),
    TableNames(14, "ChargesLineaires", "TMRChargeLineaire", "line_loads", "LineLoad", [
        IDENTIFIER, CASE, FRAME,
        ("intensity_start", "intensityDebut", "N/m", "at the start"),
        ("intensity_end", "intensityFin", "N/m", "at the end"),
    ] + DIRECTION + TURNING + [
        START, END, ("length", "=double", "m", "from end to end"),
    ]),
    TableNames(15, "ChargesSurfaciques", "TMRChargeSurfacique", "surface_loads", "SurfaceLoad", [
        IDENTIFIER, CASE, FRAME,
        ("intensity_1", "intensiteI", "N/m²", "at the first corner"),
        ("intensity_2", "intensiteJ", "N/m²", "at the second corner"),
        ("intensity_3", "intensiteK", "N/m²", "at the third corner"),
    ] + DIRECTION + [("outline", "Geometrie", "m", "its corners"), AREA]),
    TableNames(16, "ChargesPoidsPropre", "TMRChargePoidsPropre", "self_weight_loads",
               "SelfWeightLoad", GROUP_LOAD + [
                   ("dx", "dX", "", "share of the weight along x"),
                   ("dy", "dY", "", "share of the weight along y"),
                   ("dz", "dZ", "", "share of the weight along z, -1 downwards"),
               ] + GROUP_OF_LOAD),
    TableNames(17, "ChargesThermiques", "TMRChargeThermique", "thermal_loads", "ThermalLoad",
               GROUP_LOAD + [
                   ("temperature", "DeltaT", "°C", "change of temperature"),
                   ("gradient_y", "Gy", "°C/m", "gradient along y"),
                   ("gradient_z", "Gz", "°C/m", "gradient along z"),
               ] + GROUP_OF_LOAD),
    TableNames(18, "ChargesSismiques", "TMRChargeSismique", "seismic_cases", "SeismicCase", [
        ("identifier", "lIdentifier", "", "always 0"),
        ("load_case", "iNumCas", "", "number of the load case"),
        ("direction", "iDirection", "", "0 along x, 1 along y, 2 along z"),
        ("displacement_reduction", "dDisplacementsReductionCoeff", "", "coefficient"),
        ("force_reduction", "dForcesReductionCoeff", "", "coefficient"),
        ("computes_reduction", "bReductionCoeffCalculation", "", "1 when computed, else 0"),
        ("sign_choice", "iSignChoice", "", "how signs are chosen"),
        ("mode", "iMode", "", "of the signs"),
        ("periods", "pPeriodsSpectrum", "s", "of the spectrum"),
        ("accelerations", "pAccelerationSpectrum", "", "of the spectrum, one for each period"),
        ("site", "iSite", "", "site"),
        ("work_class", "iWorkClass", "", "class of the work"),
        ("ductility", "dDuctilityCoeff", "", "coefficient of ductility"),
        ("soil_layer", "dLayerOfSoil", "m", "layer of soil"),
        ("risk", "bRisk", "", "1 for yes, else 0"),
        ("soil_kind", "iKinfOfSoil", "", "kind of soil"),
        ("topography", "dTopographicCoeff", "", "coefficient of topography"),
        ("zone", "iZone", "", "seismic zone"),
        ("limits_dampings", "bDampingsLimitation", "", "1 for yes, else 0"),
    ]),
    TableNames(19, "Combinaisons", "TMRCombinaison", "combinations", "Combination", [
        ("load_case", "iNumCas", "", "number of its own load case"),
        ("cases", "pNumCas", "", "numbers of the combined cases"),
        ("factors", "pCoeff", "", "one for each combined case"),
    ], base="CombinationTable"),
    TableNames(20, "Enveloppes", "TMREnveloppe", "envelopes", "Envelope", [
        ("load_case", "iNumCas", "", "number of its own load case"),
        ("quantity", "iGrandeur", "", "quantity that is enveloped"),
        ("envelope_n", "iParamEnveloppeN", "", "parameter N of the envelope"),
        ("envelope_a", "iParamEnveloppeA", "", "parameter A of the envelope"),
        ("envelope_f", "iParamEnveloppeF", "", "parameter F of the envelope"),
        ("envelope_s", "iParamEnveloppeS", "", "parameter S of the envelope"),
        ("value_n", "iParamValeurN", "", "parameter N of the values"),
        ("value_a", "iParamValeurA", "", "parameter A of the values"),
        ("value_f", "iParamValeurF", "", "parameter F of the values"),
        ("value_s", "iParamValeurS", "", "parameter S of the values"),
        ("keeps_cases", "bConserverCas", "", "1 when the cases are kept, else 0"),
        ("case_count", "iNbCases", "", "number of cases as written, may be negative"),
        ("cases", "pCases", "", "numbers of the enveloped cases"),
    ]),
    TableNames(21, "Nodes", "TMRNode", "nodes", "Node", [
        IDENTIFIER, LABELS,
        ("fixity", "blocage", "", "fixity code of the product"),
        POINT,
    ]),
    TableNames(22, "Masses", "TMRMasse", "masses", "Mass", [
        IDENTIFIER, ("group", "GroupNumber", "", "not in the file: 0"), LABELS,
        ("type", "ElementType", "", "always empty"),
        ("load_case", "NumCas", "", "not in the file: 0"),
        ("frame", "Repere", "", "not in the file: 0"),
        ("mx", "Mx", "", "mass along x, as the file has it"),
        ("my", "My", "", "mass along y"),
        ("mz", "Mz", "", "mass along z"),
        ("ix", "Ix", "", "inertia about x"),
        ("iy", "Iy", "", "inertia about y"),
        ("iz", "Iz", "", "inertia about z"),
        POINT,
    ]),
    TableNames(23, "Cables", "TMRCable", "cables", "Cable", [
        IDENTIFIER, GROUP, BLANK_TYPE, CASE, FRAME, START, END,
    ]),
    TableNames(24, "Lines", "TMRLine", "construction_lines", "ConstructionLine", [
        IDENTIFIER, GROUP, LABELS, ("type", "ElementType", "", "always Ligne"),
        ("element_count", "NrElements", "", "number of elements on it"),
        ("spacing", "Spacing", "", "how they are spaced"),
        ("element_size", "SizeElements", "m", "size of the elements"),
        ("spacing_factor", "SpacingFactor", "", "factor of the spacing"),
        START, END,
    ]),
    TableNames(25, "LinesInterieur", "TMRLineInterieur", "inner_lines", "InnerLine", [
        ("identifier", "lIdentifier", "", "number in the file"),
        ("mesh", "iMaillage", "", "divisions of the mesh"),
        LABELS, START, END,
    ]),
    TableNames(26, "Deplacements", "TMRDeplacement", "displacements", "Displacement", [
        IDENTIFIER, GROUP, BLANK_TYPE,
        ("dx", "dX", "m", "along x"), ("dy", "dY", "m", "along y"), ("dz", "dZ", "m", "along z"),
        ("rx", "Rx", "", "rotation about x, as the file has it"), ("ry", "Ry", "", "about y"),
        ("rz", "Rz", "", "about z"),
        POINT,
    ]),
    TableNames(27, "SurfacicSections", "TMRSurfacicSection", "cuts", "Cut", [
        IDENTIFIER, ("layer", "Couche", "", "layer"), BLANK_TYPE, START, END,
    ]),
    # One row each.
    TableNames(28, "parameters of the modal analysis", "TMRModes", "modal", "Modal", [
        ("mode_count", "iNrOfModes", "", "number of modes as written, may be negative"),
        ("percent_x", "dPercentX", "%", "of the mass along x"),
        ("percent_y", "dPercentY", "%", "of the mass along y"),
        ("percent_z", "dPercentZ", "%", "of the mass along z"),
        ("mass_choice", "iMassChoice", "", "choice of masses"),
        ("cases", "pNumCas", "", "numbers of the cases that give masses"),
        ("factors", "pCoeffCas", "", "one for each of those cases"),
        ("computes_dampings", "bComputeDampings", "", "1 when computed, else 0"),
        ("dampings", "pDampingValues", "", "one for each mode"),
        ("method", "iCalculMethod", "", "0 for method 41, 1 for any other"),
        ("residual_mode", "bResidualMode", "", "1 for yes, else 0"),
    ]),
    TableNames(29, "settings of the model", "TMRStructureData", "settings", "Setting", [
        ("tolerance", "tol3D", "m", "points nearer to each other are one"),
        ("work_space", "espaceDeTravail", "", "1 plane, 2 grid, 3 space"),
        ("rigid_in_bending", "rigideEnFlexion", "", "1 for yes, else 0"),
        ("version", "=text", "", "of the file, as written"),
        ("service_pack", "=int", "", "-1 when the file says none"),
        ("skipped_combinations", "=int", "", "combinations of the file that lack a case"),
    ]),
    TableNames(30, "messages of the import", "", "messages", "Message", [
        ("text", "=text", "", "what the import says about a load case"),
    ]),
    TableNames(31, "findings of the check", "", "findings", "Finding", [
        ("code", "=text", "", "TMR101 and so on: docs/check.md explains each"),
        ("severity", "=text", "", "error, warning or note"),
        ("line", "=int", "", "of the file, from 1; 0 where there is none"),
        ("text", "=text", "", "in English"),
        ("column", "=int", "", "of that line, from 1; 0 for the whole line"),
        ("length", "=int", "", "how many characters are meant"),
        ("kind", "=text", "", "of the record that it is about: \"bar\""),
        ("identifier", "=long", "", "of that record, or its number; -1 for none"),
        ("values", "=texts", "", "what the texts speak of"),
        ("text_fr", "=text", "", "in French"),
    ], base="FindingTable"),
    TableNames(32, "numbers of findings by code", "", "finding_counts", "FindingCount", [
        ("code", "=text", "", "TMR101 and so on"),
        ("severity", "=text", "", "error, warning or note"),
        ("count", "=long", "", "how many there are; of each code the first 10000 are findings"),
    ]),
]
