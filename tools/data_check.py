#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: data_check.py ORVANE FOLDER UNPACKED

Imports, lists and draws real data, and compares numbers of features and extents with those of GDAL's own tools.
FOLDER: gets the maps and pictures. UNPACKED: the unpacked packages, a folder for each.
"""
import json
import pathlib
import re
import subprocess
import sys

# package, end of the path in it, coordinate system of the map (None: the one it gets by itself), options of ogrinfo
VECTOR = [
    ("r-cran-spdata", "shapes/world.gpkg", "EPSG:4326", []),
    ("r-cran-spdata", "shapes/columbus.shp", "EPSG:4326", []),  # names no system
    ("r-cran-spdata", "shapes/NY8_utm18.shp", None, []),
    ("r-cran-spdata", "shapes/cycle_hire.geojson", "EPSG:4326", []),
    ("r-cran-spdata", "misc/cycle_hire_xy.csv", "EPSG:4326",
     ["-oo", "X_POSSIBLE_NAMES=X", "-oo", "Y_POSSIBLE_NAMES=Y"]),
    ("r-cran-spdata", "misc/world_wkt.csv", "EPSG:4326", []),
    ("r-cran-sf", "gml/fmi_test.gml", "EPSG:4258", []),
    ("r-cran-sf", "shape/storms_xyz.shp", "EPSG:4326", []),
    ("r-cran-sf", "gpkg/nc.gpkg", "EPSG:4267", []),
    ("python3-geopandas", "datasets/nybb_16a.zip", "EPSG:2263", []),
    ("python3-cartopy", "ne_110m_lakes.shp", "EPSG:4326", []),
    ("r-cran-maptools", "shapes/co37_d90.shp", "EPSG:4326", []),  # names no system
]
# package, end of the path in it, coordinate system of the map (that of the data)
RASTER = [
    ("r-cran-stars", "tif/L7_ETMs.tif", "EPSG:31985"),
    ("r-cran-stars", "tif/olinda_dem_utm25s.tif", "EPSG:32725"),
    ("r-cran-spdata", "raster/elev.tif", "EPSG:4326"),
]
TOLERANCE = 2e-6  # ogrinfo prints six decimals


class Different(Exception):
    """Orvane does not show what GDAL reads."""


def run(*command):
    done = subprocess.run([str(word) for word in command], capture_output=True, text=True, timeout=300)
    if done.returncode != 0:
        raise Different(f"{' '.join(map(str, command))}: exit code {done.returncode}: {done.stderr.strip()}")
    return done.stdout


def union(boxes):
    west, south, east, north = zip(*boxes)
    return [min(west), min(south), max(east), max(north)]


def measured(path, folder):
    """A copy of the data whose header holds the extent of its features: a GeoPackage may store a rounded one."""
    copy = folder / f"{path.stem}.fgb"
    run("ogr2ogr", "-f", "FlatGeobuf", "-nlt", "PROMOTE_TO_MULTI", copy, path)
    return copy


def expected(path, options):
    """The number of features and the extent that GDAL finds, over all layers."""
    source = f"/vsizip/{path}" if path.suffix == ".zip" else path
    text = run("ogrinfo", "-ro", "-so", "-al", *options, source)
    count = sum(int(number) for number in re.findall(r"^Feature Count: (\d+)", text, re.M))
    boxes = re.findall(r"^Extent: \(([-\d.]+), ([-\d.]+)\) - \(([-\d.]+), ([-\d.]+)\)", text, re.M)
    return count, union([[float(number) for number in box] for box in boxes])


def shown(orvane, map_file):
    """The same as Orvane has it."""
    layers = json.loads(run(orvane, "list", "--json", map_file))["layers"]
    return sum(layer["features"] for layer in layers), union([layer["extent"] for layer in layers])


def check_drawn(orvane, map_file, picture):
    run(orvane, map_file, "--export", picture, "--map-only", "--size", "400x300px")
    bands = re.findall(r"STATISTICS_STDDEV=([\d.]+)", run("gdalinfo", "-stats", picture))
    pathlib.Path(f"{picture}.aux.xml").unlink(missing_ok=True)
    if max(map(float, bands), default=0) < 1:
        raise Different("nothing is drawn")


def check_extent(box, wanted, tolerance=TOLERANCE):
    if any(abs(one - other) > tolerance for one, other in zip(box, wanted)):
        raise Different(f"extent {box} instead of {wanted}")


def check_raster(orvane, folder, path, system):
    map_file = folder / f"{path.stem}.orvane"
    run(orvane, "import", path, "--to", map_file, "--map-crs", system)
    layers = json.loads(run(orvane, "list", "--json", map_file))["layers"]
    info = json.loads(run("gdalinfo", "-json", path))
    raster = layers[0].get("raster") if len(layers) == 1 else None
    if not raster or [raster["width"], raster["height"]] != info["size"]:
        raise Different(f"{layers} instead of one raster of {info['size']} pixels")
    if raster["bands"] != len(info["bands"]):
        raise Different(f"{raster['bands']} bands instead of {len(info['bands'])}")
    corners = [info["cornerCoordinates"][name] for name in ("upperLeft", "lowerRight")]
    hundredth = abs(info["geoTransform"][1]) / 100  # of a pixel; gdalinfo prints few decimals
    check_extent(layers[0]["extent"], union([corner * 2 for corner in corners]), hundredth)
    check_drawn(orvane, map_file, folder / f"{path.stem}.png")


def check_vector(orvane, folder, path, system, options):
    map_file = folder / f"{path.stem}.orvane"
    run(orvane, "import", path, "--to", map_file, *(["--map-crs", system] if system else []))
    count, box = shown(orvane, map_file)
    source = measured(path, folder) if path.suffix == ".gpkg" else path
    wanted_count, wanted_box = expected(source, options)
    if -90 < wanted_box[1] < -89:  # an area around the pole is closed along the meridian and the pole
        wanted_box[:3] = [-180, -90, 180]
    if count != wanted_count:
        raise Different(f"{count} features instead of {wanted_count}")
    check_extent(box, wanted_box)
    check_drawn(orvane, map_file, folder / f"{path.stem}.png")


def check(unpacked, package, ending, compare):
    """Whether the file of the package passes compare."""
    paths = [path for path in (unpacked / package).rglob("*") if path.as_posix().endswith("/" + ending)]
    try:
        if not paths:
            raise Different(f"the package {package} has no such file")
        compare(paths[0])
    except Different as difference:
        print(f"{ending}: {difference}")
        return False
    print(f"{ending}: as GDAL has it")
    return True


def main(orvane, folder, unpacked):
    done = [check(unpacked, package, ending, lambda path: check_vector(orvane, folder, path, system, options))
            for package, ending, system, options in VECTOR]
    done += [check(unpacked, package, ending, lambda path: check_raster(orvane, folder, path, system))
             for package, ending, system in RASTER]
    return 0 if all(done) else 1


if __name__ == "__main__":
    sys.exit(main(*(pathlib.Path(word).resolve() for word in sys.argv[1:4])))
