"""How to load an envelope, as line drawings: into the paper cassette, and into the multi-purpose tray.

Drawn four times as large and scaled down, on white, so that they look the same in a light and in a
dark window.
"""

from PIL import Image, ImageDraw

SIZE = (278, 243)
SCALE = 4
INK = (58, 64, 72)
FAINT = (150, 158, 168)
BODY = (236, 239, 243)
SHADE = (214, 220, 227)
PAPER = (255, 255, 255)
FLAP = (247, 240, 222)
ACCENT = (0, 112, 184)


class Sheet:
    """A white sheet in points, drawn on in order from back to front."""

    def __init__(self):
        self.image = Image.new("RGB", (SIZE[0] * SCALE, SIZE[1] * SCALE), PAPER)
        self.pen = ImageDraw.Draw(self.image)

    def area(self, points, fill, ink=INK, width=1.4):
        scaled = [(x * SCALE, y * SCALE) for x, y in points]
        self.pen.polygon(scaled, fill=fill)
        self.line(points + [points[0]], ink, width)

    def line(self, points, ink=INK, width=1.4):
        scaled = [(x * SCALE, y * SCALE) for x, y in points]
        self.pen.line(scaled, fill=ink, width=round(width * SCALE), joint="curve")
        r = width * SCALE / 2
        for x, y in scaled:
            self.pen.ellipse((x - r, y - r, x + r, y + r), fill=ink)

    def dashes(self, a, b, ink=FAINT, width=1.0, length=4.0):
        steps = max(1, int(((b[0] - a[0]) ** 2 + (b[1] - a[1]) ** 2) ** 0.5 / length))
        for i in range(0, steps, 2):
            ends = [(a[0] + (b[0] - a[0]) * j / steps, a[1] + (b[1] - a[1]) * j / steps) for j in (i, i + 1)]
            self.line(ends, ink, width)

    def arrow(self, tail, head, width=5.0):
        """A broad arrow along a straight line."""
        dx, dy = head[0] - tail[0], head[1] - tail[1]
        n = (dx * dx + dy * dy) ** 0.5
        ux, uy = dx / n, dy / n
        neck = (head[0] - 13 * ux, head[1] - 13 * uy)
        half, wide = width / 2, width * 1.5
        self.area(
            [(tail[0] - uy * half, tail[1] + ux * half), (neck[0] - uy * half, neck[1] + ux * half),
             (neck[0] - uy * wide, neck[1] + ux * wide), head,
             (neck[0] + uy * wide, neck[1] - ux * wide), (neck[0] + uy * half, neck[1] - ux * half),
             (tail[0] + uy * half, tail[1] - ux * half)], ACCENT, ACCENT, 0.6)

    def finished(self):
        return self.image.resize(SIZE, Image.LANCZOS)


def floor_plan(origin, across, away):
    """A point of a plane that lies on the table: u to the right, v away from the person."""
    return lambda u, v: (origin[0] + u * across[0] + v * away[0], origin[1] + u * across[1] + v * away[1])


def envelope(sheet, at, left, right, near, far, flap, printed_side):
    """An envelope with its flap open toward the person; the printed side shows an address."""
    sheet.area([at(left, near), at(right, near), at(right - 5, near - flap), at(left + 5, near - flap)], FLAP)
    sheet.area([at(left, near), at(right, near), at(right, far), at(left, far)], PAPER)
    middle = (left + right) / 2
    if printed_side:
        for u, v0, v1 in ((middle + 7, near + 22, far - 12), (middle - 3, near + 14, far - 24)):
            sheet.line([at(u, v0), at(u, v1)], FAINT, 2.2)
        sheet.area([at(left + 6, far - 20), at(left + 17, far - 20), at(left + 17, far - 6), at(left + 6, far - 6)],
                   SHADE, FAINT, 0.9)
    else:
        seam = middle + 6
        sheet.dashes(at(seam, near), at(seam, far))
        sheet.dashes(at(left, far - 5), at(right, far - 5))


def guides(sheet, at, left, right, near, far, height=7):
    """The two paper guides, against the long edges of the envelope."""
    for u, side in ((left - 1, -5), (right + 1, 5)):
        foot = [at(u, near), at(u, far), at(u + side, far), at(u + side, near)]
        top = [(x, y - height) for x, y in foot]
        sheet.area([foot[0], foot[3], top[3], top[0]], SHADE, ACCENT, 1.2)
        sheet.area(top, BODY, ACCENT, 1.2)
        inner = [foot[0], foot[1], top[1], top[0]]
        if side < 0:
            sheet.area(inner, SHADE, ACCENT, 1.2)


def printer(sheet, mouth):
    """The printer from the front: lid, body, control panel, and the opening for the paper."""
    sheet.area([(46, 20), (232, 20), (246, 50), (32, 50)], BODY)
    sheet.area([(60, 25), (218, 25), (226, 43), (52, 43)], (245, 247, 249), FAINT, 1.0)
    sheet.area([(32, 50), (246, 50), (246, 112), (32, 112)], BODY)
    sheet.area([(44, 58), (100, 58), (100, 76), (44, 76)], (225, 230, 236), FAINT, 1.0)
    sheet.area([(48, 61), (72, 61), (72, 73), (48, 73)], (180, 205, 224), FAINT, 0.8)
    for x in (80, 88, 96):
        sheet.line([(x, 67), (x + 0.1, 67)], FAINT, 3.0)
    sheet.area(mouth, (92, 99, 108))


def into_cassette():
    """The printed side down, the flap toward the person."""
    sheet = Sheet()
    printer(sheet, [(62, 86), (216, 86), (216, 112), (62, 112)])
    at = floor_plan((66, 205), (1.0, 0.0), (0.10, -0.62))
    depth, width = 158, 130
    rim = [at(-8, -34), at(width + 12, -34), at(width + 12, depth), at(-8, depth)]
    front = [(x, y + 14) for x, y in rim[:2]]
    sheet.area([rim[0], rim[1], front[1], front[0]], SHADE)
    sheet.area(rim, BODY)
    sheet.area([at(-2, -28), at(width + 6, -28), at(width + 6, depth), at(-2, depth)], (226, 231, 237), FAINT, 1.0)
    envelope(sheet, at, 34, 98, 4, 140, 26, printed_side=False)
    guides(sheet, at, 34, 98, 40, 112)
    sheet.area([(62, 86), (216, 86), (216, 104), (62, 104)], (92, 99, 108))
    sheet.area([(32, 76), (246, 76), (246, 90), (32, 90)], BODY, BODY, 0.4)
    for a, b in (((32, 50), (32, 112)), ((246, 50), (246, 112)), ((62, 90), (216, 90))):
        sheet.line([a, b])
    sheet.arrow((248, 214), (262, 140))
    return sheet.finished()


def into_tray():
    """The printed side up, the flap toward the person."""
    sheet = Sheet()
    printer(sheet, [(62, 90), (216, 90), (216, 110), (62, 110)])
    sheet.area([(40, 150), (238, 150), (238, 166), (40, 166)], SHADE)
    sheet.area([(32, 112), (246, 112), (238, 150), (40, 150)], BODY)
    at = floor_plan((58, 226), (1.0, 0.0), (0.10, -0.70))
    tray = [at(0, -2), at(144, -2), at(140, 166), at(4, 166)]
    lip = [(x, y + 6) for x, y in tray[:2]]
    sheet.area([tray[0], tray[1], lip[1], lip[0]], SHADE)
    sheet.area(tray, BODY)
    envelope(sheet, at, 40, 104, 26, 162, 26, printed_side=True)
    guides(sheet, at, 40, 104, 62, 134)
    sheet.area([(62, 90), (216, 90), (216, 112), (62, 112)], (92, 99, 108))
    sheet.arrow((252, 218), (262, 140))
    return sheet.finished()
