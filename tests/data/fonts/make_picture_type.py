"""Makes picture-type.ttf: a font that holds a coloured square as a picture, for U+1F3E6 and A.

Takes fontTools (python3-fonttools); run here after a change.
"""

import struct, zlib
from fontTools.fontBuilder import FontBuilder
from fontTools.ttLib import newTable
from fontTools.ttLib.tables import E_B_L_C_, E_B_D_T_, C_B_D_T_, C_B_L_C_
from fontTools.ttLib.tables.BitmapGlyphMetrics import SmallGlyphMetrics, BigGlyphMetrics

def png(size):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
    rows = b""
    for y in range(size):
        rows += b"\0" + b"".join(bytes((0, 96, 160, 255)) for x in range(size))
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b""))

SIZE = 64
fb = FontBuilder(1024, isTTF=True)
fb.setupGlyphOrder([".notdef", "square"])
fb.setupCharacterMap({0x1F3E6: "square", 0x41: "square"})
fb.setupHorizontalMetrics({".notdef": (1024, 0), "square": (1024, 0)})
fb.setupHorizontalHeader(ascent=896, descent=-128)
fb.setupNameTable({"familyName": "Picture Test", "styleName": "Regular", "uniqueFontIdentifier": "PictureTest", "fullName": "Picture Test", "version": "1.0", "psName": "PictureTest"})
fb.setupOS2(sTypoAscender=896, usWinAscent=896, usWinDescent=128)
fb.setupPost()
fb.setupMaxp()
font = fb.font
cbdt = font["CBDT"] = newTable("CBDT"); cbdt.version = 3.0
cblc = font["CBLC"] = newTable("CBLC"); cblc.version = 3.0
glyph = C_B_D_T_.cbdt_bitmap_format_17(b"", font); 
m = glyph.metrics = SmallGlyphMetrics(); m.height = m.width = SIZE; m.BearingX = 0; m.BearingY = 56; m.Advance = SIZE
glyph.imageData = png(SIZE)
cbdt.strikeData = [{"square": glyph}]
strike = E_B_L_C_.Strike(); t = strike.bitmapSizeTable
t.colorRef = 0; t.startGlyphIndex = t.endGlyphIndex = 1; t.ppemX = t.ppemY = SIZE; t.bitDepth = 32; t.flags = 1
for side in ("hori", "vert"):
    l = E_B_L_C_.SbitLineMetrics(); l.ascender = 56; l.descender = -8; l.widthMax = SIZE
    for n in ("caretSlopeNumerator","caretSlopeDenominator","caretOffset","minOriginSB","minAdvanceSB","maxBeforeBL","minAfterBL","pad1","pad2"): setattr(l, n, 0)
    setattr(t, side, l)
sub = E_B_L_C_.eblc_index_sub_table_1(b"", font); sub.firstGlyphIndex = sub.lastGlyphIndex = 1; sub.indexFormat = 1; sub.imageFormat = 17; sub.names = ["square"]; 
strike.indexSubTables = [sub]
cblc.strikes = [strike]
font.save("picture-type.ttf")
