#!/usr/bin/env python3
"""Draws the bundle's pictures anew, into the folder of this script, and the photograph of the sample
document beside that.

Needs python3-pil and python3-numpy. The finished pictures are kept in the repository, so that a
build needs neither. The preview's pictures are named after the colour-matching choices that show
them; "None" stands for printing without the printer's own colours.
"""

from pathlib import Path

import numpy as np
from PIL import Image

import envelopes
import media
import scene

FOLDER = Path(__file__).resolve().parent
PREVIEW = (192, 144)
RAYS = 5  # a side, for each pixel
PHOTOGRAPH = (720, 540)

LUMINANCE = np.array([0.2126, 0.7152, 0.0722])

# Saturation about the luminance, contrast about middle grey, and the brightness of that grey.
LOOKS = {
    "Natural": (1.00, 1.00, 0.18),
    "Vivid": (1.32, 1.08, 0.18),
    "None": (0.80, 0.86, 0.18),
}


def look(colours, saturation, contrast, grey):
    """The scene as one way of colour matching prints it, in linear light."""
    luminance = (colours @ LUMINANCE)[..., None]
    saturated = np.clip(luminance + (colours - luminance) * saturation, 0, None)
    return grey * (saturated / grey) ** contrast


def encoded(colours):
    """8-bit sRGB of linear light."""
    c = np.clip(colours, 0, 1)
    srgb = np.where(c <= 0.0031308, c * 12.92, 1.055 * c ** (1 / 2.4) - 0.055)
    return Image.fromarray((srgb * 255 + 0.5).astype(np.uint8), "RGB")


# A photograph hardly gets smaller, and an icon not enough to be worth a decoder at every start.
def save(picture, name, compression=None):
    picture.save(FOLDER / f"{name}.tiff", compression=compression, dpi=(72, 72))


def main():
    colours = scene.render(*PREVIEW, RAYS)
    for name, settings in LOOKS.items():
        save(encoded(look(colours, *settings)), name)
    photograph = encoded(scene.render(*PHOTOGRAPH, 2))
    photograph.save(FOLDER.parent / "sample" / "photograph.jpg", quality=88)
    save(envelopes.into_cassette(), "QTLark22_Env", "tiff_adobe_deflate")
    save(envelopes.into_tray(), "QTLark22_Tray_Env", "tiff_adobe_deflate")
    for name, picture in media.all_media().items():
        save(picture, name)


if __name__ == "__main__":
    main()
