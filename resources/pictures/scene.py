"""The test scene of the colour preview: a bust, fruit, grey cards and a plant on a wooden table in
front of hills and sky, in soft sunlight. Rendered by marching rays through distance fields, so that
it has what a photograph has: skin tones, gradients, texture, greys, highlights and soft shadows.

Lengths are in decimetres, y points up, colours are linear light.
"""

import numpy as np

SUN = np.array([0.55, 0.62, 0.56]) / np.linalg.norm([0.55, 0.62, 0.56])
SUN_COLOUR = np.array([1.0, 0.93, 0.82]) * 1.85
SKY_LIGHT = np.array([0.42, 0.55, 0.78]) * 0.85
FAR = 60.0


def noise(p, seed):
    """Smooth value noise of points (n x d), 0 to 1, the same for the same seed everywhere."""
    cell = np.floor(p).astype(np.int64)
    t = p - cell
    t = t * t * (3 - 2 * t)
    total = np.zeros(len(p))
    for corner in np.ndindex(*(2,) * p.shape[1]):
        offset = np.array(corner)
        h = np.full(len(p), seed * 374761393, dtype=np.int64)
        for axis, prime in zip(range(p.shape[1]), (73856093, 19349663, 83492791)):
            h ^= (cell[:, axis] + offset[axis]) * prime
        h = (h ^ (h >> 13)) * 1274126177 & 0x7FFFFFFF
        weight = np.prod(np.where(offset, t, 1 - t), axis=1)
        total += weight * ((h ^ (h >> 16)) & 0xFFFF) / 65535.0
    return total


def fbm(p, seed, octaves=5):
    """Noise summed over octaves: clouds, leaves, stone."""
    total, size = np.zeros(len(p)), 0.5
    for i in range(octaves):
        total += size * noise(p * 2.0**i, seed + i)
        size *= 0.5
    return total


def ellipsoid(p, centre, radii):
    q = (p - centre) / radii
    k0 = np.linalg.norm(q, axis=1)
    k1 = np.linalg.norm(q / radii, axis=1)
    return k0 * (k0 - 1) / np.maximum(k1, 1e-9)


def capsule(p, a, b, radius):
    a, b = np.array(a), np.array(b)
    pa, ba = p - a, b - a
    h = np.clip(pa @ ba / (ba @ ba), 0, 1)
    return np.linalg.norm(pa - h[:, None] * ba, axis=1) - radius


def box(p, centre, half, radius):
    q = np.abs(p - centre) - (np.array(half) - radius)
    return np.linalg.norm(np.maximum(q, 0), axis=1) + np.minimum(q.max(axis=1), 0) - radius


def smooth_union(a, b, k):
    h = np.clip(0.5 + 0.5 * (b - a) / k, 0, 1)
    return b + (a - b) * h - k * h * (1 - h)


HEAD = np.array([-1.55, 2.62, 0.0])


def face_frame(p):
    """Points seen from the head, which looks a little to the right of the camera."""
    angle = 0.42
    q = p - HEAD
    c, s = np.cos(angle), np.sin(angle)
    return np.stack([c * q[:, 0] - s * q[:, 2], q[:, 1], s * q[:, 0] + c * q[:, 2]], axis=1)


def skin(p):
    q = face_frame(p)
    d = ellipsoid(q, [0, 0.12, -0.06], np.array([0.72, 0.86, 0.82]))
    d = smooth_union(d, ellipsoid(q, [0, -0.38, 0.16], np.array([0.52, 0.56, 0.56])), 0.25)
    nose = capsule(q, [0, 0.06, 0.74], [0, -0.20, 0.88], 0.06)
    d = smooth_union(d, nose, 0.16)
    for side in (-1, 1):
        d = smooth_union(d, ellipsoid(q, [side * 0.28, -0.2, 0.5], np.array([0.2, 0.2, 0.2])), 0.15)
        d = -smooth_union(-d, ellipsoid(q, [side * 0.27, 0.08, 0.88], np.array([0.15, 0.09, 0.14])), 0.1)
        d = np.minimum(d, ellipsoid(q, [side * 0.27, 0.05, 0.62], np.array([0.13, 0.09, 0.1])))
        d = smooth_union(d, ellipsoid(q, [side * 0.73, -0.05, -0.08], np.array([0.07, 0.19, 0.13])), 0.05)
    d = smooth_union(d, ellipsoid(q, [0, -0.44, 0.70], np.array([0.17, 0.05, 0.09])), 0.05)
    neck = capsule(p, HEAD + [0, -0.6, -0.15], HEAD + [0.0, -1.5, -0.25], 0.34)
    return smooth_union(d, neck, 0.14)


def hair(p):
    q = face_frame(p)
    d = ellipsoid(q, [0, 0.26, -0.16], np.array([0.84, 0.87, 0.88]))
    d = smooth_union(d, ellipsoid(q, [0, -0.4, -0.5], np.array([0.68, 0.8, 0.42])), 0.3)
    d += 0.012 * np.sin(q[:, 0] * 34 + 3 * q[:, 1]) * np.cos(q[:, 2] * 21)
    face = ellipsoid(q, [0.06, -0.22, 0.86], np.array([0.66, 0.78, 0.78]))
    return -smooth_union(-d, face, 0.06)


def shirt(p):
    d = ellipsoid(p, HEAD + [0, -2.35, -0.3], np.array([1.5, 1.05, 0.75]))
    collar = ellipsoid(p, HEAD + [0, -1.32, -0.1], np.array([0.5, 0.3, 0.5]))
    return -smooth_union(-d, collar, 0.08)


def apple(p):
    q = p - np.array([1.28, 0.47, 1.2])
    r = np.hypot(q[:, 0], q[:, 2])
    return np.hypot(r - 0.16, q[:, 1] * 0.98) - 0.34


def stalk(p):
    return capsule(p, [1.28, 0.75, 1.2], [1.35, 1.0, 1.17], 0.03)


def lemon(p):
    q = p - np.array([2.1, 0.34, 1.45])
    angle = 0.5
    c, s = np.cos(angle), np.sin(angle)
    q = np.stack([c * q[:, 0] - s * q[:, 2], q[:, 1], s * q[:, 0] + c * q[:, 2]], axis=1)
    d = ellipsoid(q, [0, 0, 0], np.array([0.45, 0.34, 0.34]))
    return smooth_union(d, capsule(q, [-0.5, 0, 0], [0.5, 0, 0], 0.06), 0.1)


def pot(p):
    q = p - np.array([2.35, 0.62, -0.5])
    r = np.hypot(q[:, 0], q[:, 2])
    body = np.maximum(r - (0.52 + 0.18 * q[:, 1]), np.abs(q[:, 1]) - 0.62) * 0.95
    rim = np.maximum(np.abs(r - 0.62) - 0.08, np.abs(q[:, 1] - 0.56) - 0.1)
    return np.minimum(body, rim)


def leaves(p):
    q = p - np.array([2.35, 2.25, -0.5])
    d = ellipsoid(p, [2.35, 2.25, -0.5], np.array([1.12, 1.1, 1.0]))
    near = np.abs(d) < 0.6
    d = d + 0.0
    if near.any():
        d[near] += 0.62 * (noise(q[near] * 4.6, 11) - 0.45) + 0.2 * (noise(q[near] * 10.0, 12) - 0.5)
    return d * 0.5


CARD_TONES = (0.02, 0.07, 0.17, 0.34, 0.66)


def card(index):
    x = -0.95 + 0.37 * index
    return lambda p: box(p, [x, 0.17, 1.62 + 0.03 * index], (0.17, 0.17, 0.17), 0.035)


def table(p):
    return p[:, 1]


def plain(*rgb):
    return lambda p: np.tile(np.array(rgb, dtype=float), (len(p), 1))


def mix(a, b, t):
    return np.asarray(a) + (np.asarray(b) - np.asarray(a)) * t[:, None]


def step(low, high, x):
    t = np.clip((x - low) / (high - low), 0, 1)
    return t * t * (3 - 2 * t)


def skin_colour(p):
    q = face_frame(p)
    colour = mix([0.70, 0.39, 0.255], [0.64, 0.335, 0.215], noise(q * 3.0, 5))
    for side in (-1, 1):
        cheek = np.exp(-(((q[:, 0] - side * 0.34) / 0.2) ** 2 + ((q[:, 1] + 0.22) / 0.17) ** 2))
        colour = mix(colour, [0.74, 0.28, 0.20], 0.5 * cheek * (q[:, 2] > 0))
        x = (q[:, 0] - side * 0.27) / 0.15
        lid = np.abs(q[:, 1] - (0.015 + 0.05 * x * x - 0.02)) < 0.02
        colour[lid & (np.abs(x) < 1) & (q[:, 2] > 0.3)] = [0.10, 0.045, 0.03]
        brow = np.abs(q[:, 1] - (0.25 - 0.05 * x * x)) < 0.026
        colour[brow & (np.abs(x) < 1.2) & (q[:, 2] > 0.3)] = [0.13, 0.06, 0.035]
    lips = ((q[:, 0] / 0.21) ** 2 + ((q[:, 1] + 0.44) / 0.072) ** 2 < 1) & (q[:, 2] > 0.3)
    colour[lips] = [0.56, 0.15, 0.13]
    return colour


def hair_colour(p):
    q = face_frame(p)
    strand = noise(np.stack([q[:, 0] * 16, q[:, 1] * 2, q[:, 2] * 16], axis=1), 21)
    return mix([0.075, 0.035, 0.018], [0.22, 0.105, 0.05], strand)


def shirt_colour(p):
    weave = 0.5 + 0.5 * np.sin(p[:, 1] * 26)
    return mix([0.045, 0.13, 0.31], [0.62, 0.66, 0.70], step(0.72, 0.8, weave))


def apple_colour(p):
    q = p - np.array([1.28, 0.47, 1.2])
    streak = noise(np.stack([np.arctan2(q[:, 2], q[:, 0]) * 17, q[:, 1] * 3], axis=1), 31)
    return mix([0.55, 0.035, 0.03], [0.60, 0.30, 0.05], 0.75 * step(0.55, 1.25, streak + 1.1 * q[:, 1]))


def leaf_colour(p):
    return mix([0.03, 0.10, 0.02], [0.22, 0.36, 0.05], fbm(p * 5.5, 41, 3))


def wood_colour(p):
    warp = fbm(p[:, [0, 2]] * np.array([0.5, 1.6]), 51, 4)
    grain = noise(np.stack([p[:, 0] * 0.7, p[:, 2] * 9 + warp * 7], axis=1), 52)
    colour = mix([0.24, 0.115, 0.05], [0.46, 0.26, 0.125], grain)
    joint = np.abs(np.mod(p[:, 2] + 0.15, 1.25) - 0.625) < 0.018
    colour[joint] *= 0.35
    return colour


# Distance field, colour, and how shiny: strength and exponent of the highlight.
OBJECTS = [
    (table, wood_colour, 0.10, 18),
    (skin, skin_colour, 0.10, 22),
    (hair, hair_colour, 0.22, 30),
    (shirt, shirt_colour, 0.02, 8),
    (apple, apple_colour, 0.55, 70),
    (stalk, plain(0.10, 0.05, 0.02), 0.0, 1),
    (lemon, plain(0.76, 0.50, 0.035), 0.3, 40),
    (pot, plain(0.46, 0.165, 0.075), 0.06, 12),
    (leaves, leaf_colour, 0.08, 16),
] + [(card(i), plain(tone, tone, tone), 0.04, 12) for i, tone in enumerate(CARD_TONES)]


def distance(p):
    return np.min([field(p) for field, *_ in OBJECTS], axis=0)


def march(origins, directions, steps=90):
    """How far each ray goes until it meets something; FAR where it meets nothing."""
    t = np.full(len(directions), 0.02)
    alive = np.arange(len(directions))
    for _ in range(steps):
        d = distance(origins[alive] + directions[alive] * t[alive, None])
        t[alive] += d * 0.9
        alive = alive[(d > 0.002) & (t[alive] < 22)]
        if not len(alive):
            break
    t[t >= 22] = FAR
    return t


def normals(p):
    e = 0.004
    n = np.stack([distance(p + e * axis) - distance(p - e * axis) for axis in np.eye(3)], axis=1)
    return n / np.maximum(np.linalg.norm(n, axis=1), 1e-9)[:, None]


def sun_shadow(p, n):
    """1 in full sun, 0 in full shadow; the sun is as wide as through thin cloud."""
    light = np.ones(len(p))
    t = np.full(len(p), 0.06)
    for _ in range(28):
        d = distance(p + n * 0.02 + SUN * t[:, None])
        light = np.minimum(light, np.clip(0.5 + 5.5 * d / t, 0, 1))
        t += np.clip(d, 0.05, 0.4)
    return light * light * (3 - 2 * light)


def openness(p, n):
    """How much of the sky a point sees, roughly."""
    hidden = np.zeros(len(p))
    for i in range(1, 6):
        h = 0.07 * i * i * 0.8
        hidden += np.maximum(h - distance(p + n * h), 0) / h * 0.5**i
    return np.clip(1 - 1.1 * hidden, 0.08, 1)


def background(d):
    """Sky with clouds above two rows of wooded hills."""
    height = d[:, 1] / np.maximum(np.abs(d[:, 2]), 0.2)
    across = d[:, 0] / np.maximum(np.abs(d[:, 2]), 0.2)
    sky = mix([0.60, 0.76, 0.90], [0.050, 0.20, 0.60], step(-0.02, 0.42, height))
    plane = np.stack([across * 3.4 + 3, height * 8.5], axis=1)
    cover = step(0.50, 0.72, fbm(plane, 61, 6)) * step(0.02, 0.14, height)
    shade = step(0.4, 0.75, fbm(plane + [0.1, -0.35], 61, 6))
    colour = mix(sky, mix([0.95, 0.95, 0.96], [0.66, 0.70, 0.77], shade), 0.92 * cover)
    for seed, base, size, near, far, scale in (
        (71, 0.050, 0.13, [0.15, 0.25, 0.31], [0.25, 0.37, 0.43], 30),
        (81, -0.02, 0.11, [0.050, 0.110, 0.035], [0.17, 0.25, 0.075], 55),
    ):
        ridge = base + size * (fbm(np.stack([across * 2.2, across * 0], axis=1) + 7, seed, 5) - 0.3)
        ridge += 0.01 * noise(np.stack([across * 60, across * 0], axis=1), seed)
        woods = fbm(np.stack([across, height * 1.6], axis=1) * scale, seed + 3, 5)
        slope = fbm(np.stack([across * 2 + height * 3, height * 7], axis=1), seed + 9, 2)
        hill = mix(near, far, np.clip(0.4 * step(0.3, 0.7, woods) + 1.1 * (slope - 0.22), 0, 1))
        colour = mix(colour, hill, step(0.004, -0.004, height - ridge))
    return colour


def shade(p, n, view, base, strength, exponent):
    sun = np.clip(n @ SUN, 0, 1) * sun_shadow(p, n)
    sky = openness(p, n)
    half = SUN - view
    half /= np.linalg.norm(half, axis=1)[:, None]
    shine = strength * np.clip(np.sum(n * half, axis=1), 0, 1) ** exponent * (sun > 0)
    light = SUN_COLOUR * sun[:, None] + SKY_LIGHT * (sky * (0.6 + 0.4 * n[:, 1]))[:, None]
    bounce = np.array([0.30, 0.19, 0.11]) * (sky * np.clip(0.5 - 0.5 * n[:, 1], 0, 1))[:, None]
    return base * (light + bounce) + SUN_COLOUR * (shine * np.minimum(sun * 3, 1))[:, None]


def render(width, height, samples):
    """The scene in linear light, height x width x 3, averaged over samples x samples rays a pixel."""
    w, h = width * samples, height * samples
    x, y = np.meshgrid((np.arange(w) + 0.5) / w * 2 - 1, 1 - (np.arange(h) + 0.5) / h * 2)
    eye = np.array([0.25, 2.55, 8.4])
    forward = np.array([0.25, 1.82, 0]) - eye
    forward /= np.linalg.norm(forward)
    right = np.cross(forward, [0, 1, 0])
    right /= np.linalg.norm(right)
    up = np.cross(right, forward)
    d = forward + 0.40 * x.reshape(-1, 1) * right + 0.40 * height / width * y.reshape(-1, 1) * up
    d /= np.linalg.norm(d, axis=1)[:, None]
    origins = np.tile(eye, (len(d), 1))
    t = march(origins, d)
    colour = background(d)
    p = origins + d * t[:, None]
    hit = np.flatnonzero((t < FAR) & (p[:, 2] > -2.4))
    p, view = p[hit], d[hit]
    n = normals(p)
    owner = np.argmin([field(p) for field, *_ in OBJECTS], axis=0)
    for index, (_, paint, strength, exponent) in enumerate(OBJECTS):
        mine = np.flatnonzero(owner == index)
        if len(mine):
            colour[hit[mine]] = shade(p[mine], n[mine], view[mine], paint(p[mine]), strength, exponent)
    colour = colour / (1 + 0.10 * colour)
    return colour.reshape(height, samples, width, samples, 3).mean(axis=(1, 3))
