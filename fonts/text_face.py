"""The digits that EAN and UPC fonts print: one even stroke, lines and circular arcs, no serif but
the foot of the 1, open forms that neither eye nor reader confuses.

`digit` gives contours of (x, y, on the curve) in whole font units, the outer ones clockwise,
standing on the line y = 0 and beginning at x = 0.
"""

from math import acos, atan2, ceil, cos, degrees, floor, hypot, radians, sin, sqrt, tan

WIDTH_TO_HEIGHT = 0.6


def digit(value, height, stroke):
    """Contours of a digit in a box of `height` and `digit_width(height)`."""
    return _DRAWINGS[value](_Box(digit_width(height), height, stroke))


def digit_width(height):
    return WIDTH_TO_HEIGHT * height


class _Box:
    """The room a digit has, its stroke, and the circles that the round digits are made of."""

    def __init__(self, width, height, stroke):
        self.width = width
        self.height = height
        self.stroke = stroke
        self.middle = width / 2
        self.outer = width / 2
        self.inner = width / 2 - stroke


def _zero(box):
    def oval(radius):
        upper = _arc(box.middle, box.height - box.outer, radius, 180, 0)
        return _contour(upper + _arc(box.middle, box.outer, radius, 0, -180))

    return [oval(box.outer), oval(box.inner)[::-1]]


def _one(box):
    stroke, height = box.stroke, box.height
    left = box.middle - 0.2 * stroke
    right = left + stroke
    flagEnd = 0.12 * box.width
    slope = tan(radians(38))
    peak = left + 0.35 * stroke
    thickness = stroke / cos(radians(38))

    def flag(x):
        return height - (peak - x) * slope

    foot = 0.34 * box.width
    stem = (left + right) / 2
    points = [
        (stem - foot, 0),
        (stem - foot, stroke),
        (left, stroke),
        (left, flag(left) - thickness),
    ]
    points += [
        (flagEnd, flag(flagEnd) - thickness),
        (flagEnd, flag(flagEnd)),
        (peak, height),
        (right, height),
    ]
    points += [(right, stroke), (stem + foot, stroke), (stem + foot, 0)]
    return [_polygon(points)]


def _two(box):
    half = box.stroke / 2
    centreY = box.height - box.outer
    radius = box.outer - half
    cornerX, cornerY = half, half
    towards = degrees(atan2(cornerY - centreY, cornerX - box.middle))
    tangent = towards + degrees(acos(radius / hypot(cornerX - box.middle, cornerY - centreY)))
    runX, runY = sin(radians(tangent)), -cos(radians(tangent))

    def diagonal(radiusThere, x=None, y=None):
        startX = box.middle + radiusThere * cos(radians(tangent))
        startY = centreY + radiusThere * sin(radians(tangent))
        along = (x - startX) / runX if y is None else (y - startY) / runY
        return (startX + along * runX, startY + along * runY, True)

    begin = 168
    points = _arc(box.middle, centreY, box.outer, begin, tangent)
    points += [
        diagonal(box.outer, y=box.stroke),
        (box.width, box.stroke, True),
        (box.width, 0, True),
    ]
    points += [(0, 0, True), diagonal(box.inner, x=0)]
    points += _arc(box.middle, centreY, box.inner, tangent, begin)
    return [_contour(points)]


def _bowls(box):
    """Centres (y) and outer radii of the two bowls of 3 and 8, strokes merging at the waist."""
    sum_ = (box.height + box.stroke) / 2
    lower = 0.525 * sum_
    upper = sum_ - lower
    return (box.height - upper, upper), (lower, lower)


def _waist(upper, lower):
    """Angles, right of the middle, at which the outer circles of the two bowls meet."""
    (upperY, upperRadius), (lowerY, lowerRadius) = upper, lower
    distance = upperY - lowerY
    fromLower = (distance**2 + lowerRadius**2 - upperRadius**2) / (2 * distance)
    side = sqrt(lowerRadius**2 - fromLower**2)
    return degrees(atan2(fromLower - distance, side)), degrees(atan2(fromLower, side))


def _three(box):
    upper, lower = _bowls(box)
    (upperY, upperRadius), (lowerY, lowerRadius) = upper, lower
    upperMeet, lowerMeet = _waist(upper, lower)
    middle = box.middle
    tongue = middle - 0.2 * box.width
    begin, end = 158, -160
    points = _arc(middle, upperY, upperRadius, begin, upperMeet)
    points += _arc(middle, lowerY, lowerRadius, lowerMeet, end)
    points += _arc(middle, lowerY, lowerRadius - box.stroke, end, 90)
    waist = 2 * lowerRadius - box.stroke
    points += [(tongue, waist, True), (tongue, waist + box.stroke, True)]
    points += _arc(middle, upperY, upperRadius - box.stroke, -90, begin)
    return [_contour(points)]


def _four(box):
    stroke, height, width = box.stroke, box.height, box.width
    barBottom = 0.23 * height
    barTop = barBottom + stroke
    stemLeft = 0.58 * width
    stemRight = stemLeft + stroke
    peak = stemRight - 1.2 * stroke
    run, rise = peak, height - barTop
    across = stroke * hypot(run, rise) / rise

    def inside(x):
        return barTop + (x - across) * rise / run

    outer = [(stemLeft, 0), (stemLeft, barBottom), (0, barBottom), (0, barTop), (peak, height)]
    outer += [(stemRight, height), (stemRight, barTop), (width, barTop), (width, barBottom)]
    outer += [(stemRight, barBottom), (stemRight, 0)]
    counter = [(across, barTop), (stemLeft, barTop), (stemLeft, inside(stemLeft))]
    return [_polygon(outer), _polygon(counter)]


def _five(box):
    stroke, height = box.stroke, box.height
    left = 0.09 * box.width
    right = left + stroke
    centreX, centreY = box.middle, box.outer
    meet = degrees(acos((right - centreX) / box.outer))
    begin, end = 140, -165
    cut = centreY + (left - centreX) * tan(radians(begin))
    points = [(left, cut, True), (left, height, True), (0.94 * box.width, height, True)]
    points += [(0.94 * box.width, height - stroke, True), (right, height - stroke, True)]
    points += _arc(centreX, centreY, box.outer, meet, end)
    points += _arc(centreX, centreY, box.inner, end, begin)
    return [_contour(points)]


def _six(box):
    upperY, lowerY = box.height - box.outer, box.outer
    meet = degrees(acos((box.stroke - box.middle) / box.outer))
    end = 32
    points = _arc(box.middle, upperY, box.outer, 180, end)
    points += _arc(box.middle, upperY, box.inner, end, 180)
    points += _arc(box.middle, lowerY, box.outer, meet, -180)
    return [_contour(points), _contour(_arc(box.middle, lowerY, box.inner, 180, -180))[::-1]]


def _seven(box):
    stroke, height, width = box.stroke, box.height, box.width
    foot = 0.2 * width
    drop = height - stroke
    run = width - foot
    across = stroke * hypot(run, drop) / drop
    slope = drop / (width - foot - across)
    points = [(0, drop), (0, height), (width, height), (width, drop), (foot + across, 0), (foot, 0)]
    points += [(foot + drop / slope, drop)]
    return [_polygon(points)]


def _eight(box):
    upper, lower = _bowls(box)
    (upperY, upperRadius), (lowerY, lowerRadius) = upper, lower
    upperMeet, lowerMeet = _waist(upper, lower)
    middle = box.middle
    points = _arc(middle, upperY, upperRadius, 180 - upperMeet, upperMeet)
    points += _arc(middle, lowerY, lowerRadius, lowerMeet, -180 - lowerMeet)
    counters = [
        _contour(_arc(middle, y, radius - box.stroke, 180, -180))[::-1]
        for y, radius in (upper, lower)
    ]
    return [_contour(points)] + counters


def _nine(box):
    turnX, turnY = round(box.width), round(box.height)
    return [[(turnX - x, turnY - y, on) for x, y, on in contour] for contour in _six(box)]


_DRAWINGS = (_zero, _one, _two, _three, _four, _five, _six, _seven, _eight, _nine)


def _arc(centreX, centreY, radius, begin, end):
    """A circular arc in quadratic pieces that meet at multiples of 45 degrees, both ends included.

    Between two whole pieces the meeting point is left to the format, which implies the middle of
    two points off the curve: there the circle passes, and no rounding makes a corner of it.
    """
    turn = 1 if end > begin else -1
    first = 45 * (floor(turn * begin / 45) + 1)
    angles = [begin, *(turn * angle for angle in range(first, ceil(turn * end), 45)), end]
    points = [_on_circle(centreX, centreY, radius, begin, True)]
    for start, stop in zip(angles, angles[1:]):
        reach = radius / cos(radians((stop - start) / 2))
        points.append(_on_circle(centreX, centreY, reach, (start + stop) / 2, False))
        whole = abs(stop - start) == 45 and abs(end - stop) >= 45
        if stop % 90 == 0 or not whole:
            points.append(_on_circle(centreX, centreY, radius, stop, True))
    return points


def _on_circle(centreX, centreY, radius, angle, onCurve):
    return (centreX + radius * cos(radians(angle)), centreY + radius * sin(radians(angle)), onCurve)


def _polygon(points):
    return _contour([(x, y, True) for x, y in points])


def _contour(points):
    """Points in whole units, without any that fall on the one before."""
    whole = [(round(x), round(y), on) for x, y, on in points]
    return [point for place, point in enumerate(whole) if point != whole[place - 1]]
