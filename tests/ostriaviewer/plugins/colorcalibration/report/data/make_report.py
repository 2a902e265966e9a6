#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Writes report.html from results.json, a second and plain way to make the report.

results.json is what an emulated camera's calibration gave (model emA1920-60ucEMU at 480 x 320
pixels, 2026-11-21). Style sheet and logos are left out, as they change on their own:
"STYLE", "LOGO" and "SMALL LOGO" stand in their places.

    cd tests/ostriaviewer/plugins/colorcalibration/report/data && ./make_report.py > report.html
"""
import html
import json

MODEL = 'Model "A" <1> & Söhne'
TIME, DATE = "23:05:09", "2031\\02\\03"
LABELS = {"DeltaE": "Delta E", "DeltaC": "Delta C", "Initial": "Original",
          "BlackLevel": "Black Level", "Calibrated": "Current"}
LUT = ("To use the Color Calibrator, the LUT had to be disabled. Using a LUT and the Color "
       "Calibrator at the same time, would adversely affect the color calibration.")


def esc(text):
    return html.escape(text, quote=False).replace('"', "&quot;")


def row(first, cells, tag):
    return ["<tr>", f"<th>{first}</th>", *[f"<{tag}>{c}</{tag}>" for c in cells], "</tr>"]


def header(values):
    return row("&nbsp;", [LABELS.get(k, k) for k in sorted(values)], "th")


def data(label, values):
    return row(label, [values[k] for k in sorted(values)], "td")


def color_table(results):
    out = ['<table id="results">']
    for number, patch in enumerate(sorted(results["PreciseColors"])):
        values = results["PreciseColors"][patch]
        out += (header(values) if number == 0 else []) + data(patch, values)
    return out + ["</table>"]


def settings_table(results, path):
    def pick(part):
        value = results[part]
        for key in path.split("/"):
            value = value[key]
        return value if isinstance(value, dict) else {path: value}
    before, after = pick("Original"), pick("Calibrated")
    return ['<table id="results">', *header(before), *data("Original", before),
            *data("Current", after), "</table>"]


def section(title):
    return [f'<br/><div class="subtitle"><h2>{title}</h2></div><div class="separator"></div>']


def report(results):
    out = ["<!DOCTYPE html><html>",
           f"<head><title>Calibration Report for {esc(MODEL)}</title>",
           '<meta charset="utf-8">', "<style>", "STYLE", "</style></head>", "<body>",
           '<div style="min-width:800px;margin:0 auto;"><div class="row"><img '
           'src="data:image/png;base64,LOGO" alt="Tavrin AG" width="283" height="92" '
           'align="right" class="logo"/></div>',
           '<div class="title"><h1>Color Calibration Report</h1></div>',
           f'<div class="report-camera-info">{esc(MODEL)}</div>',
           f'<div class="report-info">{TIME}<br/>{DATE}</div>',
           '<div class="container">']
    out += section("Colors") + color_table(results)
    for title, path in (("Black Level", "BlackLevel"), ("White Balance", "WhiteBalance"),
                        ("Color Transformation", "Matrix"),
                        ("Color Adjustment Hue", "BC6x2/Hue"),
                        ("Color Adjustment Saturation", "BC6x2/Saturation"), ("Gamma", "Gamma"),
                        ("Hue, Saturation, Brightness, Contrast", "HSBC")):
        out += section(title) + settings_table(results, path)
    out += section("LUT") + ['<div class="info-text"><br>', LUT, "</br></div>"]
    return out + ['</div><div class="row"><img src="data:image/png;base64,SMALL LOGO" '
                  'align="right" class="logo" alt="Tavrin AG"/></div></div>', "</body></html>"]


if __name__ == "__main__":
    with open("results.json", encoding="utf-8") as file:
        print("\n".join(report(json.load(file))), end="")
