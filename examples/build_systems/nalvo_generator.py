#!/usr/bin/env python3
"""A generator for FuseSoC: assembles a project, and hands the files to the design that asked for them.

FuseSoC calls it with a YAML file that has the folder of the core that asks (files_root), the name of the core to make (vlnv)
and its parameters:

    project:  the project file, from files_root
    outputs:  a list of KIND[:OPTION...]=FILE, as the option --output of nalvo-asm takes it; without folders
    werror:   true: warnings are errors

The files and a core with them are written into the present folder. nalvo-asm is expected in the path, or named by NALVO_ASM.
"""

import os
import subprocess
import sys

import yaml


def main():
    with open(sys.argv[1], encoding="utf-8") as stream:
        job = yaml.safe_load(stream)
    parameters = job["parameters"]
    command = [os.environ.get("NALVO_ASM", "nalvo-asm"), "-q", "--event", "none"]
    if parameters.get("werror"):
        command.append("--werror")
    files = []
    for output in parameters["outputs"]:
        _, _, name = output.partition("=")
        if not name or os.path.basename(name) != name:
            sys.exit(f"nalvo_generator: an output is KIND=FILE, without a folder: {output}")
        files.append({name: {"file_type": "user"}})
        command += ["--output", output]
    command += ["--", os.path.join(job["files_root"], parameters["project"])]
    status = subprocess.run(command, check=False).returncode
    if status != 0:
        sys.exit(status)
    core = {
        "name": job["vlnv"],
        "filesets": {"rom": {"files": files}},
        "targets": {"default": {"filesets": ["rom"]}},
    }
    with open("nalvo_rom.core", "w", encoding="utf-8") as stream:
        stream.write("CAPI=2:\n" + yaml.safe_dump(core, sort_keys=False))


if __name__ == "__main__":
    main()
