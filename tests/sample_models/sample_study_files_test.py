"""The sample study's script makes exactly the files that are committed.

    sample_study_files_test.py APPLICATION_DIRECTORY
"""

import pathlib
import subprocess
import sys
import tempfile


def contents(directory):
    return {path.name: path.read_bytes() for path in pathlib.Path(directory).iterdir()}


def main():
    application = pathlib.Path(sys.argv[1])
    script = application / "sample_study" / "make_sample_study.py"
    with tempfile.TemporaryDirectory() as made:
        subprocess.run([sys.executable, str(script), made], check=True)
        fresh, committed = contents(made), contents(application / "sample")
    differing = sorted(name for name in fresh.keys() | committed.keys() if fresh.get(name) != committed.get(name))
    if not fresh or differing:
        sys.exit(f"not as the script makes them: {', '.join(differing)}")


main()
