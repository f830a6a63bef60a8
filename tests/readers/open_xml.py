"""openpyxl reopens the Office Open XML files: every cell with its style, widths, heights, merges, page setup and
protection."""

from comparison import Comparison, samples, skip

try:
    import openpyxl
except ImportError:
    skip("python3-openpyxl is not installed")

# The verifier of "Tarn", the same 16 bits as in an Excel 97 file.
VERIFIER = "CA13"

HORIZONTAL = {None: 1, "general": 1, "left": 2, "center": 3, "right": 4}
# What the library adds to a width for the margin of a cell: 5 of 7 pixels, in 256ths.
MARGIN = 182 / 256

COMPARED_AT_LEAST = 30_000


def rgb(colour):
    if colour is None:
        return [0, 0, 0]
    return [int(colour.rgb[i : i + 2], 16) for i in (2, 4, 6)]


def style_of(cell):
    font, alignment, border = cell.font, cell.alignment, cell.border
    sides = [border.left, border.right, border.top, border.bottom]
    drawn = [rgb(side.color) for side in sides if side and side.style]
    return {
        "font": font.name,
        "size": font.size,
        "bold": bool(font.bold),
        "italic": bool(font.italic),
        "underline": font.underline == "single",
        "strikeout": bool(font.strike),
        "outline": bool(font.outline),
        "shadow": bool(font.shadow),
        "colour": rgb(font.color),
        "horizontal": HORIZONTAL[alignment.horizontal],
        "wrapped": bool(alignment.wrap_text),
        "middle": alignment.vertical == "center",
        "border": [side.style == "thin" for side in sides],
        "line": drawn[:1],
    }


def expected_style(style):
    return {**style, "line": [style["line"]] if any(style["border"]) else []}


def compare_cells(comparison, sheet, model):
    styles = [expected_style(style) for style in model["styles"]]
    expected = {(row, column): (text, style) for row, column, text, style in model["cells"]}
    covered = {
        (row, column)
        for first_row, first_column, last_row, last_column in model["merges"]
        for row in range(first_row, last_row + 1)
        for column in range(first_column, last_column + 1)
        if (row, column) != (first_row, first_column)
    }
    for row in sheet.iter_rows():
        for cell in row:
            text, style = expected.pop((cell.row, cell.column), ("", None))
            what = f"cell {cell.row} {cell.column}"
            comparison.same(what, cell.value or "", text)
            # the reader gives the covered cells of a merge the look of the first
            if style is not None and (cell.row, cell.column) not in covered:
                comparison.same(what + " style", style_of(cell), styles[style])
    comparison.same("cells that are missing", expected, {})


def compare_sizes(comparison, sheet, model):
    for column, width in model["widths"].items():
        letter = openpyxl.utils.get_column_letter(int(column))
        found = sheet.column_dimensions[letter].width
        comparison.same(f"width of {letter}", abs(found - MARGIN - width / 256) < 1 / 7, True)
    heights = {str(row): size.height for row, size in sheet.row_dimensions.items() if size.customHeight}
    comparison.same("heights", heights, model["heights"])
    merges = [[m.min_row, m.min_col, m.max_row, m.max_col] for m in sheet.merged_cells.ranges]
    comparison.same("merges", merges, model["merges"])


def compare_page(comparison, sheet, model):
    page = model["page"]
    margins = sheet.page_margins
    comparison.same("margins", [margins.left, margins.right, margins.top, margins.bottom], page["margins"])
    options = sheet.print_options
    comparison.same("grid lines", bool(options.gridLines), page["grid_lines"])
    comparison.same("headings", bool(options.headings), page["headings"])
    comparison.same("centred", bool(options.horizontalCentered), page["centred"])
    comparison.same("header", sheet.oddHeader.left.text or "", page["header"].removeprefix("&L"))
    comparison.same("footer", sheet.oddFooter.center.text or "", page["footer"].removeprefix("&C"))
    protection = sheet.protection
    comparison.same("contents protected", bool(protection.sheet), bool(model["protected"]))
    if model["protected"]:
        comparison.same("scenarios protected", bool(protection.scenarios), True)
        comparison.same("objects protected", bool(protection.objects), False)
        comparison.same("password", protection.password, VERIFIER)


def main():
    comparison = Comparison()
    for path, model in samples(".xlsx"):
        book = openpyxl.load_workbook(path)
        comparison.same("sheets", book.sheetnames, [model["sheet"]])
        sheet = book.worksheets[0]
        compare_cells(comparison, sheet, model)
        compare_sizes(comparison, sheet, model)
        compare_page(comparison, sheet, model)
    comparison.finish(COMPARED_AT_LEAST)


if __name__ == "__main__":
    main()
