"""A scanned chart whose colours tell where on earth they lie, as background tiles of the program under test."""
import os
import subprocess

import numpy
from PIL import Image, TiffImagePlugin

WEST, NORTH, EAST, SOUTH = 1.0, 43.0, 2.0, 42.0
PIXELS = 2000  # of a degree
FIELD = 0.125  # degrees of a field of one colour
LEVELS = (30, 80, 130, 180)


def colour_at(latitude, longitude):
    """Of the field around a place; no two of the chart are alike, and none is like a button."""
    column, row = int((longitude - WEST) / FIELD), int((NORTH - latitude) / FIELD)
    return LEVELS[column % 4], LEVELS[row % 4], 180 + 25 * (column // 4 + 2 * (row // 4))


def write_chart(path):
    """As GeoTIFF: the size of a pixel, where the first one lies, and that degrees of WGS 84 are meant."""
    count = int((EAST - WEST) / FIELD)
    fields = [[colour_at(NORTH - (row + 0.5) * FIELD, WEST + (column + 0.5) * FIELD) for column in range(count)]
              for row in range(count)]
    size = int(PIXELS * FIELD)
    pixels = numpy.array(fields, numpy.uint8).repeat(size, axis=0).repeat(size, axis=1)
    tags = TiffImagePlugin.ImageFileDirectory_v2()
    for number, kind, values in ((33550, 12, (1 / PIXELS, 1 / PIXELS, 0.0)),
                                 (33922, 12, (0.0, 0.0, 0.0, WEST, NORTH, 0.0)),
                                 (34735, 3, (1, 1, 0, 3, 1024, 0, 1, 2, 1025, 0, 1, 1, 2048, 0, 1, 4326))):
        tags.tagtype[number] = kind
        tags[number] = values
    Image.fromarray(pixels).save(path, tiffinfo=tags, compression='tiff_deflate')


def install(build):
    """For a Cockpit's `prepare`: its home gets the chart as background of its vendor."""
    def prepare(home):
        chart = os.path.join(home, 'scan.tif')
        write_chart(chart)
        subprocess.run([os.path.join(build, 'tools/chartmaker/chartmaker'), 'backgrounds', '--out',
                        os.path.join(home, '.Skyvane', 'Images'), '--vendor', 'Skyvane', '--name', 'Scan', '--type', 'vfr',
                        chart], check=True, stdout=subprocess.DEVNULL)
    return prepare
