"""The fictional region as charts of the program under test: built once for a build, installed into homes."""
import fcntl
import os
import shutil
import subprocess

from cockpit import ROOT

VENDOR = r'Skyvane\ demo\ (not\ for\ navigation)'


def charts(build):
    """The folder of the region's chart data; built anew when its makers are newer."""
    folder = os.path.join(build, 'test-islands')
    done = os.path.join(folder, 'report.txt')
    makers = [os.path.join(build, 'tools', name, maker)
              for name, maker in (('demo', 'demoregion'), ('chartmaker', 'chartmaker'))]
    with open(folder + '.lock', 'w') as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        if not os.path.exists(done) or os.path.getmtime(done) < max(map(os.path.getmtime, makers)):
            shutil.rmtree(folder, ignore_errors=True)
            subprocess.run([os.path.join(ROOT, 'tools/demo/build-region.sh'), build, folder], check=True,
                           stdout=subprocess.DEVNULL)
    return folder


def install(build):
    """For a Cockpit's `prepare`: its home gets the charts."""
    def prepare(home):
        shutil.copytree(charts(os.path.abspath(build)), os.path.join(home, '.Skyvane', 'ChartData'),
                        ignore=shutil.ignore_patterns('sources'), dirs_exist_ok=True)
        path = os.path.join(home, 'data', 'data.ini')
        with open(path) as document:
            text = document.read().replace('Vendor = Skyvane', 'Vendor = ' + VENDOR)
        with open(path, 'w') as document:
            document.write(text)
    return prepare
