"""Runs the window tests: every function test_* of the modules beside this file, each given the build folder.

    run_tests.py BUILD [--smoke] [--quick] [--jobs=N] [WORD...]

--smoke: only those marked with @smoke; --quick: none of those marked with @thorough; WORD: only names that hold it;
--jobs: that many at a time, each in a network of its own, since the simulators' ports are fixed. Where no such network
can be had, one after another. What failed beside another test is run again alone, and told: a machine that was too busy
for the test's patience proves nothing, but whoever reads the log shall know.
"""
import concurrent.futures
import glob
import importlib
import os
import subprocess
import sys
import time
import traceback

HERE = os.path.dirname(os.path.abspath(__file__))
OWN_NETWORK = ['unshare', '--net', 'sh', '-c', 'ip link set lo up && exec "$@"', 'sh']


def smoke(function):
    """Marks a test that also runs against a sanitized build."""
    function.smoke = True
    return function


def thorough(function):
    """Marks a test that takes long: it stays away from a quick run."""
    function.thorough = True
    return function


def wanted_tests(options, words):
    """(module, name) of each test to run."""
    for path in sorted(glob.glob(os.path.join(HERE, 'test_*.py'))):
        module = importlib.import_module(os.path.basename(path)[:-3])
        for name in [n for n in dir(module) if n.startswith('test_')]:
            test = getattr(module, name)
            is_wanted = '--smoke' not in options or getattr(test, 'smoke', False)
            is_wanted = is_wanted and not ('--quick' in options and getattr(test, 'thorough', False))
            if is_wanted and (not words or any(word in name for word in words)):
                yield module.__name__, name


def run_here(build, module, name):
    """Runs one test and tells of it; whether it passed."""
    start = time.time()
    try:
        getattr(importlib.import_module(module), name)(build)
        print('ok     %s (%.1f s)' % (name, time.time() - start), flush=True)
        return True
    except Exception:
        print('FAILED %s' % name)
        traceback.print_exc(file=sys.stdout)
        return False


def run_apart(build, module, name):
    """The same in a process and a network of its own."""
    command = OWN_NETWORK + [sys.executable, __file__, build, '--one=' + module + '.' + name]
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    print(result.stdout, end='', flush=True)
    return result.returncode == 0


def main():
    build = sys.argv[1]
    options = [word for word in sys.argv[2:] if word.startswith('--')]
    words = [word for word in sys.argv[2:] if not word.startswith('--')]
    sys.path.insert(0, HERE)
    sys.modules['run_tests'] = sys.modules['__main__']
    values = dict(option[2:].split('=', 1) for option in options if '=' in option)
    if 'one' in values:
        return 0 if run_here(build, *values['one'].split('.')) else 1
    tests = list(wanted_tests(options, words))
    jobs = int(values.get('jobs', 1))
    if jobs > 1 and subprocess.run(OWN_NETWORK + ['true'], stderr=subprocess.DEVNULL).returncode == 0:
        with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
            results = list(pool.map(lambda test: run_apart(build, *test), tests))
        for index in [i for i, passed in enumerate(results) if not passed]:
            print('again, alone: %s' % tests[index][1])
            results[index] = run_apart(build, *tests[index])
    else:
        results = [run_here(build, *test) for test in tests]
    print('%d passed, %d failed' % (results.count(True), results.count(False)))
    return 0 if results and all(results) else 1


if __name__ == '__main__':
    sys.exit(main())
