"""A font file from a design, with fontTools; the same design gives the same bytes."""

import re
from array import array

from design import Bar, Glyph, Level
from fontTools.fontBuilder import FontBuilder
from fontTools.ttLib import newTable
from fontTools.ttLib.tables._g_l_y_f import Glyph as FileGlyph
from fontTools.ttLib.tables._g_l_y_f import GlyphCoordinates
from fontTools.ttLib.tables.ttProgram import Program
from fontTools.ttLib.tables.TupleVariation import TupleVariation

# Seconds since 1904, as the head table counts: 1 January 2024.
CREATED = 3786912000

HEIGHT_AXIS = ("BHGT", 25, 100, 400, "Bar Height")
REDUCTION_AXIS = ("BWRD", 0, 0, 25, "Bar Width Reduction")
NAMED_REDUCTIONS = {f"Reduction {percent}": percent for percent in (5, 10, 15, 20, 25)}

# What a layout program may make of a character as it is typed. No font has a byte of its own there.
TYPESET_FORMS = {" ": "\u00a0", '"': "\u201c\u201d", "'": "\u2018\u2019", "-": "\u2011"}

# A family of symbols, of the kind "industry specific"; all else is open.
OPEN = "bWeight bProportion bContrast bStrokeVariation bArmStyle bLetterForm bMidline bXHeight"
PANOSE = {"bFamilyType": 5, "bSerifStyle": 12, **dict.fromkeys(OPEN.split(), 0)}

# Windows knows a family by no more of its name.
LONGEST_FAMILY = 31


def assemble(design, version, path, variable=False):
    glyphs = [_notdef(design)] + design.glyphs
    names = [glyph.name for glyph in glyphs]
    builder = FontBuilder(design.unitsPerEm, isTTF=True)
    builder.setupHead(
        unitsPerEm=design.unitsPerEm,
        created=CREATED,
        modified=CREATED,
        fontRevision=float(revision(version)),
    )
    builder.setupGlyphOrder(names)
    builder.setupCharacterMap(character_map(design.glyphOfByte))
    builder.setupGlyf({glyph.name: _outline(glyph) for glyph in glyphs})
    table = builder.font["glyf"]
    builder.setupHorizontalMetrics(
        {glyph.name: (glyph.advance, _left(table, glyph)) for glyph in glyphs}
    )
    builder.setupHorizontalHeader(ascent=design.ascent, descent=0, lineGap=0)
    builder.setupNameTable(_names(design, version, variable))
    _setup_os2(builder, design)
    _setup_post(builder, design)
    _setup_gasp(builder)
    if design.features:
        builder.addOpenTypeFeatures(design.features)
    if variable:
        _setup_variations(builder, glyphs, design)
    builder.save(path)


def revision(version):
    """The decimal that a font file counts by: 1.2.3 is 1.0203."""
    parts = re.fullmatch(r"(\d+)\.(\d{1,2})\.(\d{1,2})", version)
    if not parts:
        raise ValueError(f'"{version}" is no version such as 1.2.3')
    return f"{parts[1]}.{parts[2]:0>2}{parts[3]:0>2}"


def character_map(glyphOfByte):
    return {
        codePoint: glyph for byte, glyph in glyphOfByte.items() for codePoint in code_points(byte)
    }


def code_points(byte):
    """Where a byte is found. Text engines swallow controls: these are at their control pictures."""
    private = 0xF000 + byte
    if byte < 32:
        return [0x2400 + byte, private]
    if byte == 127:
        return [0x2421, private]
    if byte < 127:
        return [byte, *map(ord, TYPESET_FORMS.get(chr(byte), ""))]
    windows = bytes([byte]).decode("cp1252", "ignore")
    return sorted({byte, private, *map(ord, windows)})


def file_stem(family):
    return family.replace(" ", "")


def _notdef(design):
    """A box, so that a byte without a drawing is seen."""
    line = design.unitsPerEm // 64
    width = 10 * line
    top = Level(design.ascent)
    inner = Bar(2 * line, width - 2 * line, Level(line), Level(design.ascent - line))
    box = [Bar(line, width - line, Level(), top).contour(), inner.contour()[::-1]]
    still = [[point._replace(inward=0) for point in contour] for contour in box]
    return Glyph(".notdef", width, text=still)


def _outline(glyph):
    contours = glyph.contours()
    outline = FileGlyph()
    outline.numberOfContours = len(contours)
    if not contours:
        return outline
    points = [point for contour in contours for point in contour]
    outline.coordinates = GlyphCoordinates([(point.x, point.y.height) for point in points])
    outline.flags = array("B", [int(point.onCurve) for point in points])
    ends = [sum(map(len, contours[: place + 1])) - 1 for place in range(len(contours))]
    outline.endPtsOfContours = ends
    outline.program = Program()
    outline.program.fromBytecode(b"")
    return outline


def _left(table, glyph):
    return getattr(table[glyph.name], "xMin", 0)


def _names(design, version, variable):
    family = design.family + (" Variable" if variable else "")
    postScriptFamily = file_stem(family)
    names = {
        "familyName": family,
        "styleName": "Regular",
        "uniqueFontIdentifier": f"{version};{postScriptFamily}-Regular",
        "fullName": family,
        "version": f"Version {revision(version)}; Linewright {version}",
        "psName": f"{postScriptFamily}-Regular",
        "manufacturer": "Linewright",
        "description": f"Draws the strings that Linewright makes for {design.use}. Font size: "
        f"{design.size}. Set without tracking, hyphenation and typographer's quotes.",
    }
    if len(family) > LONGEST_FAMILY:
        names["familyName"] = design.family + " VF"
        names["typographicFamily"] = family
        names["typographicSubfamily"] = "Regular"
    if variable:
        names["variationsPostScriptNamePrefix"] = postScriptFamily
    return names


def _setup_os2(builder, design):
    latin1CodePage = 1
    regular, useTypoMetrics = 1 << 6, 1 << 7
    builder.setupOS2(
        version=4,
        fsType=0,
        fsSelection=regular | useTypoMetrics,
        achVendID="LWR ",
        panose=PANOSE,
        sTypoAscender=design.ascent,
        sTypoDescender=0,
        sTypoLineGap=0,
        usWinAscent=design.ascent,
        usWinDescent=0,
        sCapHeight=design.ascent,
        ulCodePageRange1=latin1CodePage,
    )
    os2 = builder.font["OS/2"]
    os2.recalcUnicodeRanges(builder.font)
    os2.recalcAvgCharWidth(builder.font)


def _setup_post(builder, design):
    """The underline is a thirty-second of an em thick, and as far below all bars."""
    line = design.unitsPerEm // 32
    builder.setupPost(underlinePosition=-line, underlineThickness=line)


def _setup_gasp(builder):
    """At all sizes: edges are smoothed, and none is moved to a pixel."""
    smoothed, smoothedBothWays = 2, 8
    table = builder.font["gasp"] = newTable("gasp")
    table.version = 1
    table.gaspRange = {0xFFFF: smoothed | smoothedBothWays}


def _setup_variations(builder, glyphs, design):
    axes = {HEIGHT_AXIS: design.heights, REDUCTION_AXIS: NAMED_REDUCTIONS}
    usual = {tag: default for tag, _, default, _, _ in axes}
    instances = [{"stylename": "Regular", "location": usual}]
    instances += [
        {"stylename": name, "location": {**usual, axis[0]: value}}
        for axis, named in axes.items()
        for name, value in named.items()
    ]
    builder.setupFvar(list(axes), instances)
    builder.setupStat(
        [
            {
                "tag": tag,
                "name": axisName,
                "values": [{"value": default, "name": "Regular", "flags": 2}]
                + [{"value": value, "name": name} for name, value in named.items()],
            }
            for (tag, _, default, _, axisName), named in axes.items()
        ]
    )
    builder.setupGvar({glyph.name: _variations(glyph, design.narrowBar) for glyph in glyphs})


def _variations(glyph, narrowBar):
    points = [point for contour in glyph.contours() for point in contour]
    if not any(point.inward or point.y.stretch for point in points):
        return []
    heightTag, least, default, most, _ = HEIGHT_AXIS
    reductionTag, _, _, widestReduction, _ = REDUCTION_AXIS
    halfReduction = narrowBar * widestReduction // 200

    def stretched(percent):
        return [(0, point.y.stretch * (percent - default) // 100) for point in points]

    narrowed = [(point.inward * halfReduction, 0) for point in points]
    regions = [
        ({heightTag: (-1, -1, 0)}, stretched(least)),
        ({heightTag: (0, 1, 1)}, stretched(most)),
        ({reductionTag: (0, 1, 1)}, narrowed),
    ]
    phantomPoints = [(0, 0)] * 4
    return [TupleVariation(region, deltas + phantomPoints) for region, deltas in regions]
