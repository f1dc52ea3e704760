#!/usr/bin/env python3
"""A receipt printer for the UI tests: a pseudo-terminal whose far end is
SANDBOX/dev/ttyPOS; every byte the instrument sends lands in
SANDBOX/printer.out. Ends when the sandbox goes."""
import os
import select
import sys
import tty

sandbox = sys.argv[1]
master, slave = os.openpty()
tty.setraw(slave)
link = os.path.join(sandbox, "dev", "ttyPOS")
os.makedirs(os.path.dirname(link), exist_ok=True)
if os.path.lexists(link):
    os.remove(link)
os.symlink(os.ttyname(slave), link)
out = open(os.path.join(sandbox, "printer.out"), "ab", buffering=0)
while os.path.isdir(sandbox):
    ready, _, _ = select.select([master], [], [], 0.5)
    if ready:
        try:
            out.write(os.read(master, 4096))
        except OSError:
            pass
