# SPDX-License-Identifier: Apache-2.0
"""Installs the foreign stack into a folder of the build, once.

Usage: install_peers.py FOLDER. Prints the interpreter that runs the peers. Exits with 77, and says
why on standard error, where the package registry does not answer.
"""
import fcntl
import pathlib
import subprocess
import sys
import venv

REQUIREMENTS = pathlib.Path(__file__).with_name("requirements.txt")
NOT_THERE = 77
SIGNS_OF_NO_REGISTRY = ("No matching distribution found", "Connection", "Temporary failure",
                        "Max retries exceeded", "timed out", "ProxyError")


def install(folder):
    venv.create(folder, with_pip=True, clear=True)
    done = subprocess.run(
        [folder / "bin" / "python", "-m", "pip", "install", "--quiet", "--retries", "1",
         "--timeout", "30", "--disable-pip-version-check", "--only-binary", ":all:",
         "--require-hashes", "--requirement", REQUIREMENTS],
        stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, check=False)
    if done.returncode == 0:
        return 0
    sys.stderr.write(done.stderr)
    missing = any(sign in done.stderr for sign in SIGNS_OF_NO_REGISTRY)
    return NOT_THERE if missing else 1


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.parent.mkdir(parents=True, exist_ok=True)
    wanted = REQUIREMENTS.read_text(encoding="utf-8")
    stamp = folder / "requirements.txt"
    with open(folder.with_suffix(".lock"), "w", encoding="utf-8") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        if not stamp.exists() or stamp.read_text(encoding="utf-8") != wanted:
            status = install(folder)
            if status:
                return status
            stamp.write_text(wanted, encoding="utf-8")
    print(folder / "bin" / "python")
    return 0


sys.exit(main())
