# SPDX-License-Identifier: Apache-2.0
"""What an SCL file says of one IED, as far as foreign servers have to be told it."""
import xml.etree.ElementTree as xml

SCL = "{http://www.iec.ch/61850/2003/SCL}"


class Bay:
    """The first IED of the file. Logical devices are named as in the file, without the IED."""

    def __init__(self, path):
        root = xml.parse(path).getroot()
        self.types = {child.get("id"): child for child in root.find(SCL + "DataTypeTemplates")}
        self.ied = root.find(SCL + "IED")
        self.name = self.ied.get("name")
        self.leaves = []    # (device, "LN.Data.attribute", fc, bType)
        self.data_sets = []  # (device, "LN$name", [(device, "LN.Data.attribute", fc)])
        self.reports = []   # (device, node, element, instance name)
        self.controls = []  # (device, "LN.Data")
        for device in self.ied.iter(SCL + "LDevice"):
            for node in [device.find(SCL + "LN0")] + device.findall(SCL + "LN"):
                self._add_node(device.get("inst"), node)

    def _add_node(self, device, node):
        name = node.get("prefix", "") + node.get("lnClass") + node.get("inst", "")
        for member in self.types[node.get("lnType")]:
            self._add_object(device, f"{name}.{member.get('name')}", member)
        for data_set in node.findall(SCL + "DataSet"):
            members = []
            for member in data_set.findall(SCL + "FCDA"):
                owner = member.get("prefix", "") + member.get("lnClass") + member.get("lnInst", "")
                path = [owner, member.get("doName")]
                if member.get("daName"):
                    path.append(member.get("daName"))
                members.append((member.get("ldInst"), ".".join(path), member.get("fc")))
            self.data_sets.append((device, f"{name}${data_set.get('name')}", members))
        for control in node.findall(SCL + "ReportControl"):
            enabled = control.find(SCL + "RptEnabled")
            count = 1 if enabled is None else int(enabled.get("max", "1"))
            for i in range(1, count + 1):
                indexed = control.get("indexed", "true") == "true"
                self.reports.append((device, name, control,
                                     control.get("name") + (f"{i:02d}" if indexed else "")))

    def _add_object(self, device, path, member):
        for child in self.types[member.get("type")]:
            below = f"{path}.{child.get('name')}"
            if child.get("count"):
                continue
            if child.tag == SCL + "SDO":
                self._add_object(device, below, child)
            elif child.tag == SCL + "DA":
                self._add_attribute(device, below, child, child.get("fc"))
                if child.get("name") == "Oper":
                    self.controls.append((device, path))

    def _add_attribute(self, device, path, attribute, fc):
        if attribute.get("bType") != "Struct":
            self.leaves.append((device, path, fc, attribute.get("bType")))
            return
        for child in self.types[attribute.get("type")]:
            if child.tag == SCL + "BDA":
                self._add_attribute(device, f"{path}.{child.get('name')}", child, fc)

    def leaves_of(self, device, path, fc):
        """Paths of the leaves at or below one of the data."""
        return [leaf for owner, leaf, constraint, _ in self.leaves
                if owner == device and constraint == fc
                and (leaf == path or leaf.startswith(path + "."))]


def set_flags(element, names):
    """Those of "names" (pairs of the file's name and what to call it) that the element sets."""
    if element is None:
        return []
    return [called for name, called in names if element.get(name) == "true"]
