"""A font file from a design, with fontTools; the same design gives the same bytes."""

from array import array

from design import Bar, Glyph, Level
from fontTools.fontBuilder import FontBuilder
from fontTools.ttLib.tables._g_l_y_f import Glyph as FileGlyph
from fontTools.ttLib.tables._g_l_y_f import GlyphCoordinates
from fontTools.ttLib.tables.ttProgram import Program
from fontTools.ttLib.tables.TupleVariation import TupleVariation

VERSION = "1.000"
# Seconds since 1904, as the head table counts: 1 January 2024.
CREATED = 3786912000

HEIGHT_AXIS = ("BHGT", 25, 100, 400, "Bar Height")
REDUCTION_AXIS = ("BWRD", 0, 0, 25, "Bar Width Reduction")


def assemble(design, path, variable=False):
    glyphs = [_notdef(design)] + design.glyphs
    names = [glyph.name for glyph in glyphs]
    builder = FontBuilder(design.unitsPerEm, isTTF=True)
    builder.setupHead(
        unitsPerEm=design.unitsPerEm, created=CREATED, modified=CREATED, fontRevision=float(VERSION)
    )
    builder.setupGlyphOrder(names)
    builder.setupCharacterMap(character_map(design.glyphOfByte))
    builder.setupGlyf({glyph.name: _outline(glyph) for glyph in glyphs})
    table = builder.font["glyf"]
    builder.setupHorizontalMetrics(
        {glyph.name: (glyph.advance, _left(table, glyph)) for glyph in glyphs}
    )
    builder.setupHorizontalHeader(ascent=design.ascent, descent=0, lineGap=0)
    builder.setupNameTable(_names(design, variable))
    _setup_os2(builder, design)
    builder.setupPost()
    if design.features:
        builder.addOpenTypeFeatures(design.features)
    if variable:
        _setup_variations(builder, glyphs, design.narrowBar)
    builder.save(path)


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
        return [byte]
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


def _names(design, variable):
    family = design.family + (" Variable" if variable else "")
    postScript = family.replace(" ", "") + "-Regular"
    return {
        "familyName": family,
        "styleName": "Regular",
        "uniqueFontIdentifier": f"{VERSION};{postScript}",
        "fullName": family,
        "version": f"Version {VERSION}",
        "psName": postScript,
    }


def _setup_os2(builder, design):
    latin1CodePage = 1
    regular, useTypoMetrics = 1 << 6, 1 << 7
    builder.setupOS2(
        version=4,
        fsType=0,
        fsSelection=regular | useTypoMetrics,
        achVendID="LWR ",
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


def _setup_variations(builder, glyphs, narrowBar):
    builder.setupFvar([HEIGHT_AXIS, REDUCTION_AXIS], [])
    builder.setupStat(
        [
            {
                "tag": tag,
                "name": name,
                "values": [{"value": default, "name": "Regular", "flags": 2}],
            }
            for tag, _, default, _, name in (HEIGHT_AXIS, REDUCTION_AXIS)
        ]
    )
    builder.setupGvar({glyph.name: _variations(glyph, narrowBar) for glyph in glyphs})


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
