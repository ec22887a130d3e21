"""Runs the window tests: every function test_* of the modules beside this file, each given the build folder.

    run_tests.py BUILD [--smoke] [WORD...]     --smoke: only those marked with @smoke; WORD: only names that hold it
"""
import glob
import importlib
import os
import sys
import time
import traceback


def smoke(function):
    """Marks a test that also runs against a sanitized build."""
    function.smoke = True
    return function


def main():
    build = sys.argv[1]
    only_smoke = '--smoke' in sys.argv
    words = [word for word in sys.argv[2:] if not word.startswith('--')]
    here = os.path.dirname(os.path.abspath(__file__))
    sys.path.insert(0, here)
    sys.modules['run_tests'] = sys.modules['__main__']
    passed, failed = 0, 0
    for path in sorted(glob.glob(os.path.join(here, 'test_*.py'))):
        module = importlib.import_module(os.path.basename(path)[:-3])
        for name in [n for n in dir(module) if n.startswith('test_')]:
            function = getattr(module, name)
            if (only_smoke and not getattr(function, 'smoke', False)) or (words and not any(w in name for w in words)):
                continue
            start = time.time()
            try:
                function(build)
                passed += 1
                print('ok     %s (%.1f s)' % (name, time.time() - start), flush=True)
            except Exception:
                failed += 1
                print('FAILED %s' % name)
                traceback.print_exc(file=sys.stdout)
    print('%d passed, %d failed' % (passed, failed))
    return 1 if failed or not passed else 0


if __name__ == '__main__':
    sys.exit(main())
