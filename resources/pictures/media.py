"""The small pictures beside the media types in a pop-up, named after the choices.

Transparent around the outline, in colours that can be told from a white and from a dark menu.
"""

from PIL import Image, ImageDraw

SIZE = (24, 16)
SCALE = 8
EDGE = (112, 120, 130, 255)
WHITE = (252, 252, 250, 255)
GREY = (176, 182, 190, 255)


def blank():
    image = Image.new("RGBA", (SIZE[0] * SCALE, SIZE[1] * SCALE), (0, 0, 0, 0))
    return image, ImageDraw.Draw(image)


def finished(image):
    return image.resize(SIZE, Image.LANCZOS)


def scaled(*points):
    return [(x * SCALE, y * SCALE) for x, y in points]


def outlined(pen, points, fill):
    pen.polygon(scaled(*points), fill=fill)
    pen.line(scaled(*points, points[0], points[1]), fill=EDGE, width=SCALE, joint="curve")


def gleam(image, points):
    """A stripe of light across the sheet."""
    light = Image.new("RGBA", image.size, (0, 0, 0, 0))
    ImageDraw.Draw(light).polygon(scaled(*points), fill=(255, 255, 255, 190))
    inside = Image.new("RGBA", image.size, (0, 0, 0, 0))
    inside.paste(light, mask=image.getchannel("A"))
    image.alpha_composite(inside)


def landscape(pen, box):
    """A tiny photograph: sky, sun and hill."""
    left, top, right, bottom = box
    pen.rectangle(scaled((left, top), (right, bottom)), fill=(122, 182, 226, 255))
    pen.ellipse(scaled((right - 4, top + 1), (right - 2, top + 3)), fill=(255, 222, 110, 255))
    pen.polygon(scaled((left, bottom), (left, bottom - 2), (left + 4, bottom - 5), (left + 8, bottom - 2),
                       (right, bottom - 4), (right, bottom)), fill=(96, 158, 88, 255))


def sheet(fill=WHITE):
    image, pen = blank()
    outlined(pen, [(6.5, 1), (14, 1), (17.5, 4.5), (17.5, 15), (6.5, 15)], fill)
    outlined(pen, [(14, 1), (17.5, 4.5), (14, 4.5)], GREY)
    return image, pen


def text_sheet():
    image, pen = sheet()
    for y in (6.5, 9, 11.5):
        pen.line(scaled((9, y), (15, y)), fill=GREY, width=SCALE)
    return finished(image)


def coated_sheet():
    image, pen = sheet()
    landscape(pen, (8.5, 7, 15.5, 13))
    return finished(image)


def matte_sheet():
    image, pen = sheet((244, 238, 226, 255))
    landscape(pen, (8.5, 7, 15.5, 13))
    return finished(image)


def photograph():
    image, pen = blank()
    outlined(pen, [(3.5, 2), (20.5, 2), (20.5, 14), (3.5, 14)], WHITE)
    landscape(pen, (4.5, 3, 19.5, 13))
    gleam(image, [(6, 3), (9, 3), (5, 13), (4.5, 13), (4.5, 6)])
    return finished(image)


def roll():
    image, pen = blank()
    outlined(pen, [(6, 4), (20.5, 4), (20.5, 14.5), (6, 14.5)], WHITE)
    landscape(pen, (7.5, 6, 19.5, 13.5))
    outlined(pen, [(3.5, 1), (21.5, 1), (21.5, 4.5), (3.5, 4.5)], GREY)
    pen.ellipse(scaled((2, 1), (5.5, 4.5)), fill=WHITE, outline=EDGE, width=SCALE)
    return finished(image)


def postcard(address):
    image, pen = blank()
    outlined(pen, [(7, 1), (17, 1), (17, 15), (7, 15)], WHITE)
    if address:
        pen.rectangle(scaled((8.5, 2.5), (10.5, 5)), fill=(206, 92, 92, 255))
        for x, bottom in ((12.3, 12), (14.6, 10)):
            pen.line(scaled((x, 4.5), (x, bottom)), fill=GREY, width=SCALE)
    else:
        landscape(pen, (8, 2, 16, 14))
    return finished(image)


def transparency():
    image, pen = blank()
    outlined(pen, [(8.5, 1), (19.5, 1), (19.5, 12), (8.5, 12)], (150, 200, 235, 70))
    outlined(pen, [(4.5, 4), (15.5, 4), (15.5, 15), (4.5, 15)], (150, 200, 235, 110))
    gleam(image, [(6, 4), (9, 4), (4.5, 12), (4.5, 7)])
    return finished(image)


def disc(glossy):
    image, pen = blank()
    pen.ellipse(scaled((5, 1), (19, 15)), fill=WHITE if not glossy else (196, 216, 236, 255),
                outline=EDGE, width=SCALE)
    if glossy:
        gleam(image, [(12, 8), (5, 2), (11, 0)])
        gleam(image, [(12, 8), (19, 14), (13, 16)])
        pen = ImageDraw.Draw(image)
        pen.ellipse(scaled((5, 1), (19, 15)), outline=EDGE, width=SCALE)
    pen.ellipse(scaled((9.5, 5.5), (14.5, 10.5)), fill=GREY, outline=EDGE, width=SCALE // 2)
    pen.ellipse(scaled((11, 7), (13, 9)), fill=(0, 0, 0, 0), outline=EDGE, width=SCALE // 2)
    return finished(image)


def all_media():
    return {
        "Plain": text_sheet(),
        "Inkjet": coated_sheet(),
        "VelkaroGlossy": photograph(),
        "VelkaroGlossyR": roll(),
        "VelkaroQM41Matte": matte_sheet(),
        "Glossy": photograph(),
        "HagakiAtena": postcard(address=True),
        "HagakiUra": postcard(address=False),
        "Transparencies": transparency(),
        "PrintableDisc": disc(glossy=False),
        "GlossyPrintableDisc": disc(glossy=True),
    }
