"""xlrd reopens the Excel 97 files: every cell with its style, widths, heights, merges, and the records behind page
setup and protection."""

import struct

from comparison import Comparison, samples, skip

try:
    import xlrd
    from xlrd import compdoc
except ImportError:
    skip("python3-xlrd is not installed")

# The verifier of "Tarn"; the library that writes the Office Open XML files gives the same.
VERIFIER = 0xCA13

COMPARED_AT_LEAST = 30_000


def style_of(book, cell):
    xf = book.xf_list[cell.xf_index]
    font = book.font_list[xf.font_index]
    border = xf.border
    sides = [border.left_line_style, border.right_line_style, border.top_line_style, border.bottom_line_style]
    colours = [border.left_colour_index, border.right_colour_index, border.top_colour_index, border.bottom_colour_index]
    drawn = {colour for side, colour in zip(sides, colours) if side}
    return {
        "font": font.name,
        "size": font.height / 20,
        "bold": font.weight == 700,
        "italic": font.italic,
        "underline": font.underline_type == 1,
        "strikeout": font.struck_out,
        "outline": font.outline,
        "shadow": font.shadow,
        "colour": list(book.colour_map[font.colour_index]),
        "horizontal": xf.alignment.hor_align + 1,
        "wrapped": xf.alignment.text_wrapped,
        "middle": xf.alignment.vert_align == 1,
        "border": sides,
        "line": [list(book.colour_map[colour]) for colour in drawn],
    }


def expected_style(style):
    return {**style, "line": [style["line"]] if any(style["border"]) else []}


def compare_cells(comparison, book, sheet, model):
    styles = [expected_style(style) for style in model["styles"]]
    expected = {(row - 1, column - 1): (text, style) for row, column, text, style in model["cells"]}
    for row in range(sheet.nrows):
        for column in range(sheet.ncols):
            cell = sheet.cell(row, column) if column < sheet.row_len(row) else None
            text, style = expected.pop((row, column), ("", None))
            what = f"cell {row + 1} {column + 1}"
            comparison.same(what, cell.value if cell else "", text)
            if style is not None:
                comparison.same(what + " is text", cell.ctype, xlrd.XL_CELL_TEXT if text else xlrd.XL_CELL_BLANK)
                comparison.same(what + " style", style_of(book, cell), styles[style])
    comparison.same("cells that are missing", expected, {})


def compare_sizes(comparison, sheet, model):
    widths = {str(column + 1): info.width for column, info in sheet.colinfo_map.items()}
    comparison.same("widths", widths, model["widths"])
    heights = {
        str(row + 1): info.height / 20 for row, info in sheet.rowinfo_map.items() if info.height_mismatch
    }
    comparison.same("heights", heights, model["heights"])
    merges = [[r1 + 1, c1 + 1, r2, c2] for r1, r2, c1, c2 in sheet.merged_cells if (r2 - r1, c2 - c1) != (1, 1)]
    comparison.same("merges", merges, model["merges"])


def records(stream):
    """The records as (number, body, position)."""
    position = 0
    while position + 4 <= len(stream):
        number, size = struct.unpack_from("<HH", stream, position)
        yield number, stream[position + 4 : position + 4 + size], position
        position += 4 + size


def sheet_records(path):
    document = compdoc.CompDoc(path.read_bytes())
    place, offset, size = document.locate_named_stream("Workbook")
    stream = place[offset : offset + size]
    all_records = list(records(stream))
    second_bof = [i for i, (number, _, _) in enumerate(all_records) if number == 0x809][1]
    return all_records, {number: body for number, body, _ in all_records[second_bof:]}


def text_of(body):
    if not body:
        return ""
    length, wide = struct.unpack_from("<HB", body)
    return body[3:].decode("utf-16-le" if wide & 1 else "latin-1")


def compare_page(comparison, path, model):
    _, found = sheet_records(path)
    page = model["page"]
    margins = [struct.unpack("<d", found[number])[0] for number in (0x26, 0x27, 0x28, 0x29)]
    comparison.same("margins", margins, page["margins"])
    for what, number in (("headings", 0x2A), ("grid_lines", 0x2B), ("centred", 0x83)):
        comparison.same(what, struct.unpack("<H", found[number])[0], page[what])
    comparison.same("header", text_of(found[0x14]), page["header"])
    comparison.same("footer", text_of(found[0x15]), page["footer"])
    comparison.same("contents protected", 0x12 in found, bool(model["protected"]))
    comparison.same("scenarios protected", 0xDD in found, bool(model["protected"]))
    comparison.same("objects protected", 0x63 in found, False)
    if model["protected"]:
        comparison.same("password", struct.unpack("<H", found[0x13])[0], VERIFIER)


def compare_index(comparison, path):
    """INDEX leads to each DBCELL, that to the first row of its block and to the first cell of each row."""
    all_records, found = sheet_records(path)
    at = {position: (number, body) for number, body, position in all_records}
    index = found[0x20B]
    places = struct.unpack_from(f"<{(len(index) - 16) // 4}I", index, 16)
    comparison.same("columns by the index", at[struct.unpack_from("<I", index, 12)[0]][0], 0x55)
    comparison.same("blocks", list(places), [position for number, _, position in all_records if number == 0xD7])
    for place in places:
        number, body = at[place]
        first_row = place - struct.unpack_from("<I", body)[0]
        comparison.same("a block's row", at[first_row][0], 0x208)
        cells = first_row + 20
        for offset in struct.unpack_from(f"<{(len(body) - 4) // 2}H", body, 4):
            cells += offset
            comparison.same("a row's cell", at[cells][0] in (0x201, 0xBE, 0xFD, 0xD7), True)


def compare_string_index(comparison, path):
    """Each place in EXTSST is that of a string's beginning, told twice."""
    all_records, _ = sheet_records(path)
    at = {position: number for number, _, position in all_records}
    body = next(body for number, body, _ in all_records if number == 0xFF)
    for i in range(2, len(body), 8):
        position, offset = struct.unpack_from("<IH", body, i)
        comparison.same("record of a string", at.get(position - offset) in (0xFC, 0x3C), True)


def main():
    comparison = Comparison()
    for path, model in samples(".xls"):
        book = xlrd.open_workbook(path, formatting_info=True)
        sheet = book.sheet_by_index(0)
        comparison.same("sheets", book.nsheets, 1)
        comparison.same("sheet name", sheet.name, model["sheet"])
        compare_cells(comparison, book, sheet, model)
        compare_sizes(comparison, sheet, model)
        compare_page(comparison, path, model)
        compare_index(comparison, path)
        compare_string_index(comparison, path)
    comparison.finish(COMPARED_AT_LEAST)


if __name__ == "__main__":
    main()
