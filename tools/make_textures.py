#!/usr/bin/env python3
"""Makes data/textures*.png: strips of grey tiles that the board is grained with, one for each of some
device pixel ratios, drawn at that size.

Thirteen tiles of 56 by 56 pixels, times the ratio, stand one below the other. The first is white and leaves a colour
as it is; the others look like materials. Every tile repeats without a seam, because each is built
on a torus: noise is filtered in the frequency domain, distances wrap around, waves have a whole
number of periods. The seed is fixed, so that the same picture comes out every time.

The board combines tile and colour by a bitwise AND, which turns most greys into odd tints of the
colour. So the tiles use only greys of a chain in which each darker one lacks the bits that the
lighter ones lack, and one more: then a darker grey leaves no part of any colour brighter. None lacks the
second highest bit, without which an orange turns green and a sky blue teal.

Needs numpy and Pillow (Debian: python3-numpy, python3-pil).
"""

import pathlib

import numpy as np
from PIL import Image

SIDE = 56
RATIOS = 1, 1.5, 2
GREYS = np.array([0b11000011, 0b11100011, 0b11110011, 0b11111011, 0b11111111])
WEAVE_GREYS = np.array([0b11010011, 0b11110011, 0b11111011, 0b11111111])  # keep brown brown as well


class Drawing:
    """The size that is drawn at: pixels to a unit, pixels of a side, and their places in units."""

    def __init__(self, ratio):
        self.ratio = ratio
        self.side = round(SIDE * ratio)
        self.y, self.x = np.mgrid[0:self.side, 0:self.side] / ratio


def generator(number):
    return np.random.default_rng(1000 + number)


def unit(field):
    """Stretches a field to 0..1."""
    return (field - field.min()) / (field.max() - field.min())


def noise(draw, rng, size_x, size_y, roughness=2.0):
    """Smooth noise of mean 0 and deviation 1 whose features are about so many units large."""
    spectrum = np.fft.fft2(rng.standard_normal((SIDE, SIDE)))
    fx = np.fft.fftfreq(SIDE)[None, :] * size_x
    fy = np.fft.fftfreq(SIDE)[:, None] * size_y
    spectrum = np.fft.fftshift(spectrum / (1 + (fx**2 + fy**2) * 4) ** roughness)
    # The same waves on more pixels.
    more = draw.side - SIDE
    around = (more // 2, more - more // 2)
    field = np.fft.ifft2(np.fft.ifftshift(np.pad(spectrum, around))).real
    return (field - field.mean()) / field.std()


def at(draw, field, x, y):
    """Value of a field at places between its pixels, around the edges."""
    x, y = x * draw.ratio, y * draw.ratio
    x0, y0 = np.floor(x).astype(int), np.floor(y).astype(int)
    fx, fy = x - x0, y - y0

    def pick(dx, dy):
        return field[(y0 + dy) % draw.side, (x0 + dx) % draw.side]

    upper = pick(0, 0) * (1 - fx) + pick(1, 0) * fx
    lower = pick(0, 1) * (1 - fx) + pick(1, 1) * fx
    return upper * (1 - fy) + lower * fy


def light(draw, height, strength=1.0):
    """Brightness of a relief lit from the top left."""
    slope_x = height - np.roll(height, 1, 1)
    slope_y = height - np.roll(height, 1, 0)
    return strength * draw.ratio * (slope_x + slope_y)


def cells(draw, rng, across, down, jitter, warp=0.0):
    """Distances to the two nearest of some jittered points, and the number of the nearest."""
    width, height = SIDE / across, SIDE / down
    points = [
        ((i + 0.5 * (j % 2) + 0.5 + jitter * rng.uniform(-0.5, 0.5)) * width,
         (j + 0.5 + jitter * rng.uniform(-0.5, 0.5)) * height)
        for j in range(down) for i in range(across)
    ]
    x, y = draw.x, draw.y
    if warp:
        x = draw.x + warp * noise(draw, rng, 9, 9)
        y = draw.y + warp * noise(draw, rng, 9, 9)
    distances = []
    for px, py in points:
        dx = (x - px + SIDE / 2) % SIDE - SIDE / 2
        dy = (y - py + SIDE / 2) % SIDE - SIDE / 2
        distances.append(np.hypot(dx, dy))
    distances = np.array(distances)
    order = np.sort(distances, axis=0)
    return order[0], order[1], distances.argmin(axis=0)


def weave(draw, rng, pitch, over_warp, relief, thread_tone, slub):
    """Cloth of crossing threads; over_warp tells where the upright thread lies on top."""
    i, j = (draw.x // pitch).astype(int), (draw.y // pitch).astype(int)
    count = SIDE // pitch
    warp_tone = thread_tone * rng.standard_normal(count)[i]
    weft_tone = thread_tone * rng.standard_normal(count)[j]
    half = 0.5 / draw.ratio
    u, v = (draw.x % pitch + half) / pitch, (draw.y % pitch + half) / pitch
    round_u, round_v = np.sin(np.pi * u), np.sin(np.pi * v)
    # Each thread is round across and bends down where it dives under the next.
    warp = relief * (round_u * (0.55 + 0.45 * round_v)) + warp_tone + slub * noise(draw, rng, 1.5, 14)
    weft = relief * (round_v * (0.55 + 0.45 * round_u)) + weft_tone + slub * noise(draw, rng, 14, 1.5)
    return np.where(over_warp(i, j), warp, weft - 0.12 * relief)


def linen(draw):
    rng = generator(1)
    return 226, 18, weave(draw, rng, 2, lambda i, j: (i + j) % 2 == 0, 6.0, 0.3, 0.24)


def brushed_metal(draw):
    rng = generator(2)
    streaks = noise(draw, rng, 60, 1.0, 1.2) + 0.5 * noise(draw, rng, 25, 0.6, 1.2)
    sheen = 0.7 * np.cos(2 * np.pi * (draw.y / SIDE + 0.02 * np.sin(2 * np.pi * draw.x / SIDE)))
    return 224, 17, streaks + sheen


def wood(draw):
    rng = generator(3)
    bend = noise(draw, rng, 14, 46, 2.0)
    rings = draw.x / SIDE * 5 + 0.22 * bend
    phase = rings % 1.0
    # A year's wood darkens slowly and breaks off sharply.
    year = np.where(phase < 0.86, phase / 0.86, (1 - phase) / 0.14)
    fibres = noise(draw, rng, 0.8, 30, 1.2)
    pores = np.minimum(0, noise(draw, rng, 0.7, 7, 1.5) + 1.4)
    return 214, 26, -1.3 * year**1.6 + 0.35 * fibres + 0.5 * pores


def stone(draw):
    rng = generator(4)
    near, second, which = cells(draw, rng, 4, 4, 0.8, 1.2)
    gap = np.clip((second - near) / 2.6, 0, 1)
    dome = 6 * np.sqrt(gap)
    tone = rng.uniform(-1, 1, 16)[which]
    face = light(draw, dome, 0.35) + 0.35 * tone + 0.12 * noise(draw, rng, 1.5, 1.5)
    return 221, 31, np.where(gap < 0.35, -2.4 + gap, face)


def paper(draw):
    rng = generator(5)
    fibres = np.zeros((draw.side, draw.side))
    for _ in range(46):
        x, y = rng.uniform(0, SIDE, 2)
        angle = rng.uniform(0, 2 * np.pi)
        bend = rng.uniform(-0.12, 0.12)
        tone = rng.choice([-1.0, -0.6, 0.7])
        for _ in range(round(rng.integers(9, 22) * draw.ratio)):
            fibres[int(y * draw.ratio) % draw.side, int(x * draw.ratio) % draw.side] = tone
            x, y = x + np.cos(angle) / draw.ratio, y + np.sin(angle) / draw.ratio
            angle += bend / draw.ratio
    pulp = 0.35 * noise(draw, rng, 5, 5) + 0.3 * light(draw, noise(draw, rng, 2.5, 2.5))
    return 228, 10, fibres + pulp


def leather(draw):
    rng = generator(6)
    near, second, _ = cells(draw, rng, 9, 10, 0.85, 0.7)
    gap = np.clip((second - near) / 3.0, 0, 1)
    dome = np.sqrt(gap)
    return 217, 25, 1.6 * dome + light(draw, dome, 1.5) + 0.15 * noise(draw, rng, 9, 9)


def canvas(draw):
    rng = generator(7)
    return 224, 24, weave(draw, rng, 7, lambda i, j: (i + j) % 2 == 0, 2.0, 0.06, 0.16)


def marble(draw):
    rng = generator(8)
    bend_x, bend_y = 3.5 * noise(draw, rng, 12, 12), 3.5 * noise(draw, rng, 12, 12)
    # Veins run slantwise across the whole tile, two wide ones and five thin ones, and wander.
    wide = np.abs(np.sin(np.pi * (draw.x + bend_x + 2 * (draw.y + bend_y)) / SIDE))
    thin = np.abs(np.sin(np.pi * (3 * (draw.x + bend_y) - 2 * (draw.y + bend_x)) / SIDE))
    depth = 0.6 + 0.4 * np.tanh(noise(draw, rng, 14, 14))
    veins = depth * (2.4 * np.exp(-wide / 0.07) + 0.9 * np.exp(-thin / 0.07))
    return 229, 18, 0.06 * noise(draw, rng, 16, 16) - veins


def sand(draw):
    rng = generator(9)
    wave = 0.13 * noise(draw, rng, 24, 13, 2.4)
    phase = (draw.y / SIDE * 5 + draw.x / SIDE + wave) % 1.0
    # Ripples: a long windward slope in the light, a short one behind the crest in the shade.
    slope = np.where(phase < 0.68, np.sin(np.pi * phase / 0.68),
                     -np.sin(np.pi * (phase - 0.68) / 0.32))
    return 226, 18, 1.2 * slope + 0.4 * noise(draw, rng, 0.8, 0.8, 1.0)


def tweed(draw):
    rng = generator(10)
    # Herringbone: twill whose diagonal turns round every 14 pixels.
    half = 14
    side = np.where((draw.x // half) % 2 == 0, draw.x % half, half - 1 - draw.x % half)
    twill = ((draw.y + side) // 2) % 4 < 2
    threads = np.where(twill, 1.0, -1.0) + 0.35 * noise(draw, rng, 1, 1, 1.0)
    flecks = noise(draw, rng, 1.2, 1.2, 1.5)
    return 212, 34, threads + np.where(flecks > 2.0, 1.2, 0) - np.where(flecks < -2.0, 1.0, 0)


def slate(draw):
    rng = generator(11)
    layers = 0.7 * noise(draw, rng, 30, 8, 1.7) + 0.6 * noise(draw, rng, 14, 4, 1.6)
    steps = np.floor(layers * 2.2) / 2.2
    broken = 0.75 * steps + 0.25 * layers
    return 216, 24, light(draw, broken, 1.5) + 0.55 * layers + 0.12 * noise(draw, rng, 2, 1)


def bark(draw):
    rng = generator(12)
    ridge = np.abs(at(draw, noise(draw, rng, 6, 26), draw.x + 2.2 * noise(draw, rng, 16, 12), draw.y))
    height = np.clip(ridge, 0, 1.3)
    furrow = np.exp(-ridge / 0.16)
    return 217, 35, 0.9 * height + light(draw, height, 1.3) - 1.3 * furrow + 0.25 * noise(draw, rng, 1.2, 4)


MATERIALS = [linen, brushed_metal, wood, stone, paper, leather, canvas, marble, sand, tweed, slate,
             bark]


def tile(draw, material, greys):
    """The tile of a material in greys of the chain, whose mean is the wanted one."""
    mean, contrast, field = material(draw)
    field = contrast * np.clip((field - field.mean()) / field.std(), -3, 3)
    shift = float(mean)
    for _ in range(40):
        nearest = np.abs((shift + field)[..., None] - greys).argmin(axis=-1)
        grey = greys[nearest]
        shift += 0.5 * (mean - grey.mean())
    return grey.astype(np.uint8)


def main():
    folder = pathlib.Path(__file__).resolve().parent.parent / "data"
    folder.mkdir(exist_ok=True)
    for ratio in RATIOS:
        draw = Drawing(ratio)
        white = np.full((draw.side, draw.side), 255, np.uint8)
        tiles = [tile(draw, material, WEAVE_GREYS if material is canvas else GREYS)
                 for material in MATERIALS]
        name = "textures.png" if ratio == 1 else f"textures-{ratio}.png"
        Image.fromarray(np.vstack([white, *tiles]), "L").save(folder / name, optimize=True)


if __name__ == "__main__":
    main()
