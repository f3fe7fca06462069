# SPDX-License-Identifier: Apache-2.0
"""Installs a foreign stack into a folder of the build, once.

Usage: install_peers.py REQUIREMENTS FOLDER. Prints the interpreter that runs the peers. Exits with 77, and says
why on standard error, where the package registry does not answer.
"""
import fcntl
import pathlib
import subprocess
import sys
import venv

NOT_THERE = 77
SIGNS_OF_NO_REGISTRY = ("No matching distribution found", "Connection", "Temporary failure",
                        "Max retries exceeded", "timed out", "ProxyError")


def install(requirements, folder):
    venv.create(folder, with_pip=True, clear=True)
    done = subprocess.run(
        [folder / "bin" / "python", "-m", "pip", "install", "--quiet", "--retries", "1",
         "--timeout", "30", "--disable-pip-version-check", "--only-binary", ":all:",
         "--require-hashes", "--requirement", requirements],
        stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, check=False)
    if done.returncode == 0:
        return 0
    sys.stderr.write(done.stderr)
    missing = any(sign in done.stderr for sign in SIGNS_OF_NO_REGISTRY)
    return NOT_THERE if missing else 1


def main():
    requirements, folder = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    folder.parent.mkdir(parents=True, exist_ok=True)
    wanted = requirements.read_text(encoding="utf-8")
    stamp = folder / "requirements.txt"
    with open(folder.with_suffix(".lock"), "w", encoding="utf-8") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        if not stamp.exists() or stamp.read_text(encoding="utf-8") != wanted:
            status = install(requirements, folder)
            if status:
                return status
            stamp.write_text(wanted, encoding="utf-8")
    print(folder / "bin" / "python")
    return 0


sys.exit(main())
