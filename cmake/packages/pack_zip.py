"""pack_zip.py FOLDER ARCHIVE

Packs a folder under the archive's own name: sorted, all files with the time SOURCE_DATE_EPOCH, so that the same files give
the same bytes.
"""

import os
import pathlib
import sys
import time
import zipfile

EARLIEST = 315532800  # 1980: a zip archive knows no time before


def pack(folder, archive):
    seconds = max(int(os.environ.get("SOURCE_DATE_EPOCH", time.time())), EARLIEST)
    with zipfile.ZipFile(archive, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as zip_file:
        for path in sorted(path for path in folder.rglob("*") if path.is_file()):
            name = f"{archive.stem}/{path.relative_to(folder).as_posix()}"
            entry = zipfile.ZipInfo(name, time.gmtime(seconds)[:6])
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.external_attr = 0o100644 << 16
            zip_file.writestr(entry, path.read_bytes())


if __name__ == "__main__":
    pack(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]))
