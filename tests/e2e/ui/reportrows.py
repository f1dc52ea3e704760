# The stored report rows of reportSetupTable, read as the export reads them:
# each group with a JSON decoder, never by splitting on separators.
import json

PNG = b"\x89PNG\r\n\x1a\n"


def _array(text, pos):
    rows, end = json.JSONDecoder().raw_decode(text, pos)
    if not isinstance(rows, list):
        raise ValueError("not a row group at %d" % pos)
    return rows, end


def _skip(text, pos, mark):
    if not text.startswith(mark, pos):
        raise ValueError("%r expected at %d" % (mark, pos))
    return pos + len(mark)


def run_report(text):
    """(method rows, [cycle rows], summary rows, electrode type) of a run."""
    method, pos = _array(text, 0)
    pos = _skip(text, pos, "+++++")
    cycles = []
    while text.startswith("[", pos):
        cycle, pos = _array(text, pos)
        cycles.append(cycle)
        if not text.startswith("=====", pos):
            break
        pos += 5
    pos = _skip(text, pos, "+++++")
    summary, pos = _array(text, pos)
    pos = _skip(text, pos, "*****")
    return method, cycles, summary, text[pos:]


def by_long(rows):
    """{long heading or short heading: (value, unit)} of a group."""
    return {(r[0] or r[1]): (r[2], r[3]) for r in rows}


def by_short(rows):
    return {r[1]: (r[2], r[3]) for r in rows if r[1]}


def sig_figs_dec(n, sig=4, dec=5):
    """The screens' sigFigsDec for values below 10^sig."""
    return ("%.*f" % (dec, n)) if abs(n) < 10 ** (sig - dec) else "%#.*g" % (sig, n)
