"""A dump with every record whole: materials, sections and releases in the elements that refer
to them, points and lists as the records of the contract. So programs that compare with records need
not know how a dump abbreviates them; docs/dump.md says it."""
import json
import pathlib

SCHEMA = pathlib.Path(__file__).resolve().parents[2] / 'docs' / 'dump.schema.json'
REFERENCES = {
    'Filaires': {'StartSection': 'Sections', 'EndSection': 'Sections',
                 'StartConnection': 'Attaches', 'EndConnection': 'Attaches',
                 'FilaireMaterial': 'Materials'},
    'Surfaciques': {'SurfaciqueMaterial': 'Materials'}}
TABLE_OF = {field: table for fields in REFERENCES.values() for field, table in fields.items()}


def _names_of_reals():
    real = {'$ref': '#/$defs/real'}
    with open(SCHEMA, encoding='utf-8') as file:
        records = json.load(file)['$defs'].values()
    return {name for record in records for name, value in record.get('properties', {}).items()
            if real.items() <= value.items() or value.get('items') == real}


# A dump writes a real that is whole without its point.
REALS = _names_of_reals()


def _real(value):
    return float(value) if isinstance(value, int) else value


def _point(value):
    return {axis: _real(one) for axis, one in zip('xyz', value)}


def _whole_list(name, value):
    if name == 'ElemLabels':
        return {'nbLabels': len(value), 'tabLabels': value}
    if name == 'portCoef':
        return {'nbPoints': len(value), 'tabCoef': [_real(one) for one in value]}
    if name in ('startPoint', 'endPoint', 'start', 'end'):
        return _point(value)
    if name in ('Geometrie', 'Surface'):
        if value and not isinstance(value[0], list):
            return _point(value)
        return {'nbPoints': len(value), 'tabPoints': [_point(point) for point in value]}
    return [_real(one) for one in value] if name in REALS else value


def _whole(name, value, tables):
    if isinstance(value, list):
        return _whole_list(name, value)
    if name in TABLE_OF and isinstance(value, int):
        return tables[TABLE_OF[name]][value]
    if name == 'epureSec':
        byte = ord(value['Code'])  # in the record a signed one
        value = {**value, 'Code': byte - 256 if byte > 127 else byte}
    if isinstance(value, dict):
        return {key: _whole(key, one, tables) for key, one in value.items()}
    return _real(value) if name in REALS else value


def whole_dump(dump):
    """Of what json.load made of a dump of all tables."""
    whole = {}
    for name, value in dump.items():
        is_table = isinstance(value, list) and name != 'Messages'
        whole[name] = ([_whole('', record, whole) for record in value] if is_table
                       else _whole(name, value, whole))
    return whole
