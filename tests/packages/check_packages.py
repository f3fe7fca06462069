# SPDX-License-Identifier: Apache-2.0
"""Checks the Debian packages: lintian, and a bare root in which they are installed, used and removed.

Usage: check_packages.py --built TREE DIR    make them of a tree that is built, in DIR
       check_packages.py --made DIR          take those that make-packages.sh left in DIR

Needs root, for chroot, and a Debian mirror. Ends with 77, which means skipped, where something that
is not the project's own is missing.
"""
import json
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
NAMES = ["libiec61850ext0.1", "libiec61850ext-dev", "iec61850ext-plugin", "iec61850ext-workbench",
         "iec61850ext-tools", "iec61850ext-simulator"]
TOOLS = ["dh", "dpkg-buildpackage", "lintian", "mmdebstrap", "desktop-file-validate", "appstreamcli",
         "unshare"]
# Closing a bug report with the first version is asked only of what goes into Debian itself.
SUPPRESSED = ["initial-upload-closes-no-bugs"]
# What the build of the example needs; a host's developer has it.
COMPILER = ["cmake", "g++", "make"]
PICTURES = {"workbench", "browser", "control", "report-control", "setting-groups", "file-service"}
EXAMPLE_SAYS = ["IED Browser", "IED File Service", "opened: IED Browser"]
# Where the package manager and the kernel keep what is theirs.
NOT_COMPARED = ["dev", "proc", "sys", "tmp", "var/cache", "var/lib/apt", "var/lib/dpkg", "var/log"]
NOBODY = 65534

faults = []


def skip(reason):
    print(f"Skipped: {reason}")
    sys.exit(77)


def run(*command, limit=300, check=True, **options):
    """The finished command with its output as text, both channels in one."""
    done = subprocess.run([str(word) for word in command], text=True, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, timeout=limit, **options)
    if check and done.returncode != 0:
        sys.exit(f"{' '.join(map(str, command))} ended with {done.returncode}:\n{done.stdout}")
    return done


def expect(condition, fault):
    if not condition:
        faults.append(fault)


class BareRoot:
    """A folder with a Debian system, in which commands are run."""

    def __init__(self, folder, depends):
        self.path = folder
        release = {}
        for line in pathlib.Path("/etc/os-release").read_text(encoding="utf-8").splitlines():
            key, _, value = line.partition("=")
            release[key] = value.strip('"')
        if release.get("ID") != "debian" or "VERSION_CODENAME" not in release:
            skip("the packages of this system are not Debian's")
        # The mirror of this machine, where it has one.
        sources = [path for path in (pathlib.Path("/etc/apt/sources.list"),
                                     pathlib.Path("/etc/apt/sources.list.d/debian.sources"))
                   if path.is_file() and path.stat().st_size > 0]
        made = run("mmdebstrap", "--variant=minbase", release["VERSION_CODENAME"], folder, *sources,
                   check=False, limit=600)
        if made.returncode != 0:
            skip(f"no bare root can be made:\n{made.stdout[-2000:]}")
        updated = self.run("apt-get", "-q", "update", check=False)
        if updated.returncode != 0:
            skip(f"the mirror does not answer:\n{updated.stdout[-2000:]}")
        for group in (depends, COMPILER):
            self.run("apt-get", "-q", "satisfy", "--yes", "--no-install-recommends",
                     ", ".join(group), limit=900)

    def command(self, *words, user=0):
        """The words of a command that runs in the root, with a process table of its own."""
        words = ["env", "-i", "PATH=/usr/sbin:/usr/bin:/sbin:/bin", "HOME=/tmp/home",
                 "LC_ALL=C.UTF-8", "DEBIAN_FRONTEND=noninteractive", *map(str, words)]
        return ["unshare", "--mount", "--pid", "--fork", "--kill-child=SIGKILL", "sh", "-c",
                'mount -t proc proc "$1/proc" && who=$2 && root=$1 && shift 2 && '
                'exec chroot --userspec="$who" "$root" "$@"',
                "sh", str(self.path), f"{user}:{user}", *words]

    def run(self, *words, user=0, **options):
        return run(*self.command(*words, user=user), **options)

    def content(self):
        """Paths of all files and folders that are not the package manager's or the kernel's."""
        found = set()
        for folder, folders, files in os.walk(self.path):
            relative = pathlib.Path(folder).relative_to(self.path)
            folders[:] = [name for name in folders if str(relative / name) not in NOT_COMPARED]
            found.update(str(relative / name) for name in folders + files)
        return found


def field(package, name):
    return run("dpkg-deb", "--field", package, name).stdout.strip()


def check_files(folder, packages):
    expect(sorted(packages) == sorted(NAMES), f"the packages are {sorted(packages)}")
    changes = list(folder.glob("*.changes"))
    expect(len(changes) == 1, f"{len(changes)} lists of changes")
    said = run("lintian", "--allow-root", "--fail-on", "error,warning", "--suppress-tags",
               ",".join(SUPPRESSED), *changes, check=False)
    expect(said.returncode == 0, f"lintian:\n{said.stdout}")

    version = re.search(r"^project\(.* VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text(),
                        re.MULTILINE).group(1)
    for name, package in packages.items():
        is_version = field(package, "Version")
        expect(is_version.rpartition("-")[0] == version, f"{name} has the version {is_version}")
    meta = next((ROOT / "packaging").glob("*.metainfo.xml"))
    expect(f'<release version="{version}"' in meta.read_text(),
           f"{meta.name} knows no version {version}")
    for command in (["desktop-file-validate", ROOT / "packaging/iec61850ext-workbench.desktop"],
                    ["appstreamcli", "validate", "--no-net", "--pedantic", meta]):
        said = run(*command, check=False)
        expect(said.returncode == 0, f"{command[0]}: {said.stdout}")


def depends_of(packages):
    """What the packages want of others: alternatives as they are written, versions included."""
    wanted = set()
    for package in packages.values():
        for kind in ("Pre-Depends", "Depends"):
            wanted.update(group.strip() for group in field(package, kind).split(",") if group.strip())
    return sorted(group for group in wanted if group.split()[0] not in NAMES)


def check_workbench(bare):
    said = bare.run("iec61850ext-workbench", "--version", user=NOBODY).stdout
    expect(re.fullmatch(r"workbench \d+\.\d+\.\d+\s*", said), f"the workbench says: {said}")
    bare.run("iec61850ext-workbench", "--tour", "/tmp/home/pictures", user=NOBODY)
    pictures = {path.stem: path for path in (bare.path / "tmp/home/pictures").glob("*.png")}
    missing = PICTURES - pictures.keys()
    expect(not missing, f"the tour made no picture of {sorted(missing)}")
    for name in PICTURES & pictures.keys():
        # A window of one colour packs to a few hundred octets.
        expect(pictures[name].stat().st_size > 3000, f"the picture of {name} shows nothing")

    # Every option that the program tells of is in its manual page.
    page = bare.run("gzip", "--decompress", "--stdout",
                    "/usr/share/man/man1/iec61850ext-workbench.1.gz").stdout.replace("\\", "")
    told = re.findall(r"--[a-z-]+", bare.run("iec61850ext-workbench", "--help", user=NOBODY).stdout)
    expect(len(told) > 5, "the workbench tells of no options")
    for option in told:
        expect(option in page, f"the manual page of the workbench lacks {option}")


def check_tools(bare):
    """A simulated device and a client of it, both installed."""
    station = "/usr/share/doc/iec61850ext-simulator/examples/demonstration.scd"
    simulator = subprocess.Popen(
        bare.command("iedsim", station, "--port", "0", user=NOBODY), text=True,
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    try:
        said = simulator.stdout.readline()
        port = re.search(r"listens on 127\.0\.0\.1 port (\d+)", said)
        if not port:
            faults.append(f"iedsim says: {said}")
            return
        client = ["iedctl", "--connect", f"127.0.0.1:{port.group(1)}"]
        position = "BAY1E1CTRL/QA1CSWI1.Pos"

        def read():
            answer = bare.run(*client, "--json", "read", f"{position}.stVal", user=NOBODY)
            return json.loads(answer.stdout)[0]["value"]

        expect("BAY1E1CTRL/QA1CSWI1" in bare.run(*client, "model", user=NOBODY).stdout,
               "iedctl does not find the switch in the model")
        expect(read() == 2, "the simulated switch is not closed")
        bare.run(*client, "operate", position, "--value", "off", user=NOBODY)
        until = time.monotonic() + 20
        while read() != 1:
            if time.monotonic() > until:
                faults.append("the simulated switch did not open")
                break
    finally:
        # The program in the root is the child of unshare, which passes no signals on.
        children = run("pgrep", "--parent", simulator.pid, check=False).stdout.split()
        for child in children:
            os.kill(int(child), signal.SIGTERM)
        try:
            rest, _ = simulator.communicate(timeout=20)
            expect(rest.rstrip().endswith("Ended."), f"iedsim ends with: {rest[-300:]}")
            expect(simulator.returncode == 0, f"iedsim ended with {simulator.returncode}")
        except subprocess.TimeoutExpired:
            faults.append("iedsim does not end on SIGTERM")
            simulator.kill()
            simulator.communicate()


def check_development(bare):
    bare.run("cmake", "-S", "/usr/share/doc/libiec61850ext-dev/examples", "-B", "/tmp/home/host",
             "-DCMAKE_BUILD_TYPE=Debug", user=NOBODY)
    bare.run("cmake", "--build", "/tmp/home/host", user=NOBODY)
    said = bare.run("env", "QT_QPA_PLATFORM=offscreen", "/tmp/home/host/examplehost", "--try",
                    user=NOBODY).stdout.splitlines()
    for line in EXAMPLE_SAYS:
        expect(line in said, f"the example host did not print: {line}")


def check_in_root(bare, packages):
    home = bare.path / "tmp/home"
    home.mkdir()
    os.chown(home, NOBODY, NOBODY)
    before = bare.content()
    for package in packages.values():
        shutil.copy(package, bare.path / "tmp")
    bare.run("dpkg", "--install", *(f"/tmp/{package.name}" for package in packages.values()))
    expect(bare.run("dpkg", "--verify", *NAMES).stdout == "", "an installed file is not the package's")
    expect("libIEC61850ExtTavrix.so.0.1" in bare.run("ldconfig", "--print-cache").stdout,
           "the loader does not know the libraries")
    check_workbench(bare)
    check_tools(bare)
    check_development(bare)

    said = bare.run("dpkg", "--purge", *NAMES).stdout
    expect("warning" not in said, f"removing the packages: {said}")
    expect("libIEC61850Ext" not in bare.run("ldconfig", "--print-cache").stdout,
           "the loader still knows the libraries")
    left = sorted(bare.content() - before)
    expect(not left, f"left behind: {left}")
    lost = sorted(before - bare.content())
    expect(not lost, f"taken along: {lost}")


def main():
    if len(sys.argv) == 4 and sys.argv[1] == "--built":
        built, folder = pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3])
    elif len(sys.argv) == 3 and sys.argv[1] == "--made":
        built, folder = None, pathlib.Path(sys.argv[2])
    else:
        sys.exit(__doc__)
    missing = [tool for tool in TOOLS if not shutil.which(tool)]
    if missing:
        skip(f"missing: {', '.join(missing)}")
    if os.geteuid() != 0:
        skip("only root may change the root folder")
    if run("unshare", "--mount", "--pid", "--fork", "true", check=False).returncode != 0:
        skip("this system gives out no process tables")

    if built:
        run(ROOT / "packaging/make-packages.sh", "--built", built, "--into", folder, limit=600)
    packages = {path.name.partition("_")[0]: path for path in sorted(folder.glob("*.deb"))
                if "-dbgsym_" not in path.name}
    check_files(folder, packages)
    with tempfile.TemporaryDirectory(prefix="bare-root-", ignore_cleanup_errors=True) as temporary:
        os.chmod(temporary, 0o755)
        bare = BareRoot(pathlib.Path(temporary) / "root", depends_of(packages))
        check_in_root(bare, packages)
    for fault in faults:
        print(fault)
    print(f"{len(packages)} packages, {len(faults)} faults")
    return 1 if faults else 0


sys.exit(main())
