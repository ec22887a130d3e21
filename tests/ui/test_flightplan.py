"""Flight plans in the real program: one is loaded in the window and flown over the fictional islands, and what the displays
tell is compared with what a pilot computes by hand; the position simulator; plans that are damaged."""
import math
import os
import signal
import time

from cockpit import Cockpit, end
from figures import FigureReader
from glass import GREEN, Glass
from islands import install
from navigator import along_and_right, apart, bearing, distance, offset
from run_tests import thorough
from test_dials import DEMO, SIZE, dismiss_box, hold

PLAN = 'gui/menu/documents/flightPlan*.ini'
WHERE = 'gui/menu/documents/simulator*.ini'
SAVED = 'gui/windows/documents/loadSave*.ini'
MILE, FOOT, KNOT = 1852.0, 0.3048, 0.514444444

# Of the islands' charts.
SANDA, LUMEN, EMBRA = (42.467647177, -28.194940415), (42.665497906, -28.268127650), (42.395701458, -28.072961690)
FIELD, THRESHOLD, FAR_END, ELEVATION = (42.852557, -28.255930), (42.850096, -28.265153), (42.855018, -28.246707), 371
START, CRUISE = (42.395, -28.213), 3000
AIRWAY, RUNWAY = bearing(EMBRA, LUMEN), bearing(THRESHOLD, FAR_END)
FIX = offset(THRESHOLD, RUNWAY + 180, MILE)
# How the plan is flown: circles of 110 knots at three degrees a second.
RADIUS = 110 * KNOT / math.radians(3)
CHORD = 2 * RADIUS * math.sin(math.radians(7.5))
TOLERANCE, ALTITUDE_TOLERANCE = 250.0, 200 * FOOT

FIELDS = {'BEARING': (0, 0), 'DISTANCE': (1, 0), 'ETE': (2, 0), 'ALTITUDE': (0, 1)}
LAMPS = {'COURSE': (1, 1), 'ALTITUDE': (2, 1)}


def panel(column, row):
    return column / 3, row * 0.18, (column + 1) / 3, row * 0.18 + 0.16


def config():
    lines = [line for line in DEMO.split('[P0]')[0].split('\n') if not line.startswith('PanelCount')]
    text = 'PanelCount = %d\n' % (len(FIELDS) + len(LAMPS)) + '\n'.join(lines)
    panels = [(6, kind, place) for kind, place in FIELDS.items()] + [(7, kind, place) for kind, place in LAMPS.items()]
    for number, (factory, kind, place) in enumerate(panels):
        text += ('\n[P%d]\nFactoryIndex = %d\nPage = 0\nPortrait = 0\nType = %s\nColor = 0,0,128\nSensor0 = -1\n'
                 'SensorCount = 1\nViewPortSX = %f\nViewPortSY = %f\nViewPortTX = %f\nViewPortTY = %f\n'
                 % ((number, factory, kind) + panel(*place)))
    return text


def procedure(index, name, place, kind, **values):
    keys = {'name': name.replace(' ', '\\ '), 'loctype': 2, 'ownType': kind, 'locpos.latitude': place[0],
            'locpos.longitude': place[1], 'targetGroundSpeed': 110, 'targetTurnRate': 3, 'checkCourse': 1,
            'checkAltitude': 1, 'positionTolerance': TOLERANCE, 'altitudeTolerance': ALTITUDE_TOLERANCE}
    keys.update(values)
    return ''.join('proc\\0%d\\1.%s = %s\n' % (index, key, value) for key, value in sorted(keys.items()))


def write_plans(home):
    approach = {'appId': 'TrafficPatternApproach', 'fafAlt': (ELEVATION + 500) * FOOT, 'fafPos.latitude': FIX[0],
                'fafPos.longitude': FIX[1], 'threshold.latitude': THRESHOLD[0], 'threshold.longitude': THRESHOLD[1],
                'threshold.name': '07', 'isLeftTraffic': 0, 'tpAltitude': (ELEVATION + 1000) * FOOT,
                'altitudeTolerance': 100 * FOOT}
    with open(os.path.join(home, 'data', 'fpl.ini'), 'w') as plans:
        plans.write('[Coast]\ncnt = 5\n' + procedure(0, 'Direct', SANDA, 3) +
                    procedure(1, 'Intercept Airway/Radial', LUMEN, 3, courseToElement=AIRWAY, interceptOffset=45, to=1) +
                    procedure(2, 'Direct', LUMEN, 3) +
                    procedure(3, 'Holding', LUMEN, 3, course=AIRWAY, dmedistance=2, rightturns=1) +
                    procedure(4, 'Approach', FIELD, 7, **approach))
        plans.write('[Damaged]\ncnt = 4000000000\n' + procedure(0, 'Direct', SANDA, 3, targetTurnRate=-1e300,
                                                                targetGroundSpeed='fast') +
                    procedure(1, 'Teleport', SANDA, 3) + procedure(2, 'Direct', (91.0, 0.0), 3))
        fix = offset(THRESHOLD, RUNWAY + 180 + 80, 3 * MILE)
        approach.update({'appId': 'FinalApproach', 'fafPos.latitude': fix[0], 'fafPos.longitude': fix[1]})
        plans.write('[Steep]\ncnt = 1\n' + procedure(0, 'Approach', FIELD, 7, **approach))


def prepare(build):
    """A home with the islands and the plans."""
    charts = install(build)

    def fill(home):
        charts(home)
        write_plans(home)
    return fill


class Plan(Glass):
    """The program with the islands and the saved plans."""

    def __init__(self, cockpit):
        super().__init__(cockpit)
        cockpit.wait_for_window()
        dismiss_box(cockpit)
        self.low = self.lower_area()
        bottom = self.height - self.button
        self.high = (0, 0, self.width, int(bottom * 0.62))
        self.reader = FigureReader()

    def place(self, column, row):
        left, top, right, bottom = panel(column, row)
        height = self.height - self.button
        return left * self.width, top * height, right * self.width, bottom * height

    def load(self, number, procedures):
        """The saved plan in that row, of which so many procedures can be flown."""
        self.open('FlightPlan')
        self.press(PLAN, 'bsaved', self.low)
        time.sleep(0.5)
        left, top, right, _ = self.element_rect(SAVED, 'slist')
        self.click(left + (right - left) / 3, top + (number + 0.5) * self.button * 5 // 4)
        self.press(SAVED, 'bload')
        time.sleep(0.5)
        self.plan_rows = 3 if procedures > 1 else 1

    def current(self, pixels):
        """The number of the marked row of the flight plan's window; None where there is none."""
        left, top, _, _ = map(int, self.element_rect(PLAN, 'llist', self.low))
        for row in range(6):
            r, g, b = pixels[top + int((row + 0.85) * self.button), left + 8].astype(int)
            if b > r + 60:
                return row
        return None

    def next_procedure(self):
        self.menu()
        self.click(*self.row_place(1))

    def lamp(self, pixels, kind):
        """A warning blinks: what isn't green is red now or in a moment."""
        left, top, right, bottom = map(int, self.place(*LAMPS[kind]))
        part = pixels[top:bottom, left:right].astype(int)
        return 'green' if ((part[:, :, 1] > 150) & (part[:, :, 0] < 80)).any() else 'red'

    def learn_figures(self):
        for altitude in (1234, 5678, 9000):
            feeder = hold(self.cockpit, 'flightgear', altitude_ft=altitude)
            time.sleep(1.5)
            self.reader.learn(self.cockpit.look(), self.place(*FIELDS['ALTITUDE']), str(altitude))
            end(feeder)

    def figure(self, pixels, kind):
        return self.reader.read(pixels, self.place(*FIELDS[kind]))


def racetrack():
    """From the fix around it once: a half circle to the right, two miles, a half circle, and back."""
    points = []
    for begin, course in ((LUMEN, AIRWAY), (offset(LUMEN, AIRWAY + 180, 2 * MILE, -2 * RADIUS), AIRWAY + 180)):
        centre = offset(begin, course, 0, RADIUS)
        points += [offset(centre, course - 90 + turn, RADIUS) for turn in range(15, 181, 15)]
        if course == AIRWAY:
            points.append(offset(points[-1], AIRWAY + 180, 2 * MILE))
    return points + [LUMEN]


def flight_card():
    meets = offset(LUMEN, AIRWAY + 180, leg_to_airway()[0])
    lines = ['start %.7f %.7f altitude %dft heading %.1f speed 100kt' % (START + (CRUISE, bearing(START, SANDA))),
             'runway %.7f %.7f elevation %dft course %.2f length 1600m' % (THRESHOLD + (ELEVATION, RUNWAY))]
    left = lambda miles, right=0.0: offset(LUMEN, AIRWAY + 180, miles * MILE, -right)
    route = [(SANDA, CRUISE), (meets, CRUISE), (left(7.5), CRUISE), (left(7.0, 600), CRUISE), (left(5.5, 600), CRUISE),
             (left(5.0), CRUISE), (left(4.5), CRUISE), (left(3.7), CRUISE + 350), (left(2.5), CRUISE + 350),
             (left(1.7), CRUISE), (LUMEN, CRUISE)]
    route += [(point, CRUISE) for point in racetrack()]
    base = offset(FIX, RUNWAY + 180, RADIUS, 2.2 * RADIUS)
    route += [(offset(base, RUNWAY, 0, 1.5 * MILE), ELEVATION + 1000), (base, ELEVATION + 1000)]
    route += [(offset(FIX, RUNWAY + 180, 0.3 * MILE), ELEVATION + 600), (FIX, ELEVATION + 500)]
    lines += ['follow %.7f %.7f altitude %dft' % (point + (feet,)) for point, feet in route]
    return '\n'.join(lines + ['land', 'stand 20s']) + '\n'


def leg_to_airway():
    """Where the heading of 45 degrees from SANDA meets the airway: metres before LUMEN, and length of the leg."""
    along, right = along_and_right(LUMEN, AIRWAY, SANDA)
    assert right < 0 and along < 0
    return -along + right, -right * math.sqrt(2)


class Sums:
    """What a pilot computes for one moment: the place that the bearing is to, metres left, metres beside the path; None
    for what can't be told. The islands are a plane for him, which is 60 m off over the length of a leg."""

    def __init__(self, sent, moment):
        self.place = sent['latitude_deg'], sent['longitude_deg']
        self.sent, self.moment = sent, moment

    def direct(self, target, course):
        right = abs(along_and_right(target, course, self.place)[1])
        return target, distance(self.place, target), right

    def interception(self):
        """On the slanting leg: to the turn's first chord, two more of them, and the hundred metres behind it. The leg
        begins with a turn 200 m before SANDA, where the procedure before it ends."""
        if along_and_right(LUMEN, AIRWAY, self.place)[1] > -900:
            return None
        first, leg = bearing(START, SANDA), AIRWAY + 45
        turn = math.radians((leg - first) % 360)
        begin = offset(offset(SANDA, first, -200), first, RADIUS * math.sin(turn), RADIUS * (1 - math.cos(turn)))
        along, right = along_and_right(LUMEN, AIRWAY, begin)
        meets = offset(LUMEN, AIRWAY + 180, -along + right)
        turn_in = offset(meets, leg, -RADIUS * math.tan(math.radians(22.5)))
        chord = offset(turn_in, leg, RADIUS * math.sin(math.radians(15)), -RADIUS * (1 - math.cos(math.radians(15))))
        return chord, distance(self.place, chord) + 2 * CHORD + 100.0, None

    def holding(self):
        """On the outbound leg: the rest of it, a half circle of chords, and the leg back to the fix."""
        along, right = along_and_right(LUMEN, AIRWAY, self.place)
        if apart(self.sent['track_deg'], AIRWAY + 180) > 4 or right < RADIUS or along > -300:
            return None
        outbound_end = offset(LUMEN, AIRWAY + 180, 2 * MILE, -2 * RADIUS)
        rest = distance(self.place, outbound_end)
        return None if rest < 1200 else (outbound_end, rest + 12 * CHORD + 2 * MILE, None)

    def final(self):
        along, right = along_and_right(THRESHOLD, RUNWAY, self.place)
        if not -1500 < along < -400:
            return None
        return offset(FAR_END, RUNWAY, MILE), None, abs(right)


def expected(sums, index, switched):
    if index == 0:
        return sums.direct(SANDA, bearing(START, SANDA))
    if index == 1:
        return sums.interception()
    if index == 2:
        return sums.direct(LUMEN, bearing(switched, LUMEN))
    return sums.holding() if index == 3 else sums.final()


def seconds_of(text):
    hours, minutes, seconds = map(int, text.split(':'))
    return 3600 * hours + 60 * minutes + seconds


class Comparison:
    """Everything that was read in the flight beside what was computed, and how far they were apart."""

    def __init__(self):
        self.counts, self.bearings, self.times, self.lamps = {}, [], [], {'COURSE': set(), 'ALTITUDE': set()}

    def take(self, plan, pixels, index, sums, answer):
        told_bearing = plan.figure(pixels, 'BEARING')
        told_ete = plan.figure(pixels, 'ETE')
        next_place, metres, beside = answer
        where = (index, told_bearing, told_ete, answer, sums.sent)
        off = apart(int(told_bearing), bearing(sums.place, next_place))
        assert off < 1 + math.degrees(60 / distance(sums.place, next_place)), where + (off,)
        self.bearings.append(off)
        self.counts[index] = self.counts.get(index, 0) + 1
        if metres is not None:
            ete = metres / (sums.sent['gs_kt'] * KNOT)
            assert abs(seconds_of(told_ete) - ete) < 4 + 0.01 * ete, where + (ete,)
            self.times.append(seconds_of(told_ete) - ete)
            told_miles = int(plan.figure(pixels, 'DISTANCE'))
            assert abs(told_miles - metres / MILE) < 0.65, where
        if beside is not None and abs(beside - TOLERANCE) > 60:
            lit = plan.lamp(pixels, 'COURSE')
            assert lit == ('red' if beside > TOLERANCE else 'green'), where + (lit,)
            self.lamps['COURSE'].add(lit)
        off = abs(sums.sent['altitude_ft'] - CRUISE)
        if index == 2 and abs(off - ALTITUDE_TOLERANCE / FOOT) > 50:
            lit = plan.lamp(pixels, 'ALTITUDE')
            assert lit == ('red' if off > ALTITUDE_TOLERANCE / FOOT else 'green'), where + (lit,)
            self.lamps['ALTITUDE'].add(lit)


def frozen(plan, feeder):
    """The glass and the state sent last, of the same moment: the feeder stands still for less than data takes to age."""
    feeder.send_signal(signal.SIGSTOP)
    time.sleep(0.6)
    pixels, sent = plan.cockpit.look(), plan.cockpit.truth()
    feeder.send_signal(signal.SIGCONT)
    return pixels, sent


def message_lines(pixels):
    """How many lines the red box of messages has."""
    height, width, _ = pixels.shape
    part = pixels[int(height * 0.5):int(height * 0.93), width // 3:2 * width // 3].astype(int)
    red = (part[:, :, 0] > 150) & (part[:, :, 1] < 40)
    return round((red.mean(axis=1) > 0.1).sum() / 28)


@thorough
def test_a_plan_is_flown_as_a_pilot_computes_it(build):
    with Cockpit(build, config(), SIZE, prepare=prepare(build)) as cockpit:
        plan = Plan(cockpit)
        plan.learn_figures()
        feeder = hold(cockpit, 'flightgear', latitude=START[0], longitude=START[1], altitude_ft=CRUISE,
                      heading=bearing(START, SANDA), ias_kt=100)
        time.sleep(1)
        plan.load(0, 5)
        cockpit.save(cockpit.look(), 'flightplan-loaded')
        cockpit.wait(lambda: plan.current(cockpit.look()) == 0, 20, 'the plan')
        end(feeder)
        card = os.path.join(cockpit.folder, 'flight.card')
        with open(card, 'w') as out:
            out.write(flight_card())
        feeder = cockpit.feed('--card', card, '--print', '--rate', '10', '--speed', '25')
        cockpit.wait(cockpit.truth, 10, 'the flight')
        comparison, index, since, switched, switches, messages = Comparison(), 0, 0.0, START, [], []
        holding_from = None
        while feeder.poll() is None:
            time.sleep(0.35)
            pixels, sent = frozen(plan, feeder)
            moment = sent['time_s']
            row = plan.current(pixels) if index < 4 else 4
            if row is not None and row != index:
                assert row == index + 1, (row, index, sent)
                index, since, switched = row, moment, (sent['latitude_deg'], sent['longitude_deg'])
                switches.append((index, switched))
                cockpit.save(pixels, 'flightplan-procedure-%d' % index)
            sums = Sums(sent, moment)
            answer = expected(sums, index, switched) if moment - since > 40 else None
            if answer and not sent['on_ground']:
                comparison.take(plan, pixels, index, sums, answer)
            if index == 3 and holding_from is None and sums.holding():
                holding_from = moment
            if holding_from and index == 3 and moment - holding_from > 150:
                plan.next_procedure()
                index, since = 4, moment
                switches.append((4, sums.place))
            if index == 4 and not sent['on_ground']:
                messages.append((sent['altitude_ft'] - ELEVATION, message_lines(pixels)))
                cockpit.save(pixels, 'flightplan-approach')
        print('samples %s, bearing off by %.2f at most, times off by %.1f to %.1f s, lamps %s'
              % (comparison.counts, max(comparison.bearings), min(comparison.times), max(comparison.times),
                 comparison.lamps))
        assert [number for number, _ in switches] == [1, 2, 3, 4], switches
        for (_, place), aim in zip(switches, (SANDA, None, LUMEN)):
            assert aim is None or distance(place, aim) < 2500, (place, aim)
        assert set(comparison.counts) == {0, 1, 2, 3, 4}, comparison.counts
        assert comparison.lamps == {'COURSE': {'red', 'green'}, 'ALTITUDE': {'red', 'green'}}, comparison.lamps
        # Two lines say how high the aircraft is above the runway; of that itself, which is surveyed, there is nothing to say.
        assert all(lines == (2 if height < 600 else 0) for height, lines in messages[2:] if abs(height - 600) > 60), messages
        assert any(height < 500 for height, _ in messages)
        assert cockpit.close() == 0


def is_blue(pixels):
    """The words of the bar at the bottom, between its buttons."""
    height, width, _ = pixels.shape
    part = pixels[height - 40:height - 8, width // 4:width * 2 // 3].astype(int)
    return ((part[:, :, 2] > 180) & (part[:, :, 0] < 130)).sum() > 100


@thorough
def test_the_simulator_flies_what_is_left_of_a_damaged_plan(build):
    with Cockpit(build, config(), SIZE, prepare=prepare(build)) as cockpit:
        plan = Plan(cockpit)
        plan.load(1, 1)
        time.sleep(0.5)
        plan.answer(GREEN)  # that the others can't be flown
        cockpit.wait(lambda: plan.current(cockpit.look()) == 0, 20, 'the window')
        plan.press(PLAN, 'bclose', plan.low)
        plan.open('Position Simulator')
        time.sleep(1)
        for letter in 'QQQ':  # in the place of where the plan leads to
            cockpit.key(letter)
        plan.press(WHERE, 'bstart', plan.high)
        cockpit.key('Return')  # no element is selected
        time.sleep(0.5)
        assert not is_blue(cockpit.look())
        plan.write(plan.element(WHERE, 'edest', plan.high), 'EMBRA', (0.99 * plan.width, 0.3 * plan.height))
        time.sleep(1)
        cockpit.save(cockpit.look(), 'simulator-search')
        plan.press(WHERE, 'bstart', plan.high)
        cockpit.wait(lambda: is_blue(cockpit.look()), 20, 'the word in the bar')
        plan.press(WHERE, 'bclose', plan.high)
        cockpit.wait(lambda: message_lines(cockpit.look()) == 1, 20, 'the warning that nothing is real')
        cockpit.save(cockpit.look(), 'simulator-started')
        time.sleep(0.5)
        plan.open('FlightPlan')
        plan.click(*plan.element(PLAN, 'espeed', plan.low))
        for letter in '100':
            cockpit.key(letter)
        plan.click(0.5 * plan.width, 0.3 * plan.height, pause=1)
        cockpit.save(cockpit.look(), 'simulator-plan')
        plan.press(PLAN, 'bclose', plan.low)
        plan.open('Position Simulator')
        time.sleep(1)
        plan.press(WHERE, 'bstart', plan.high)
        cockpit.wait(lambda: not is_blue(cockpit.look()), 20, 'the end of the simulation')
        assert cockpit.close() == 0


@thorough
def test_a_final_that_was_turned_is_told_as_long_as_it_is_flown(build):
    with Cockpit(build, config(), SIZE, prepare=prepare(build)) as cockpit:
        plan = Plan(cockpit)
        hold(cockpit, 'flightgear', latitude=START[0], longitude=START[1], altitude_ft=CRUISE, heading=0, ias_kt=100)
        time.sleep(1)
        plan.load(2, 1)
        cockpit.wait(lambda: plan.current(cockpit.look()) == 0, 20, 'the plan')
        plan.press(PLAN, 'bclose', plan.low)
        cockpit.wait(lambda: message_lines(cockpit.look()) == 2, 20, 'the message')
        cockpit.save(cockpit.look(), 'flightplan-steep')
        plan.load(0, 5)
        plan.press(PLAN, 'bclose', plan.low)
        cockpit.wait(lambda: message_lines(cockpit.look()) == 0, 20, 'the message to go with its approach')
        assert cockpit.close() == 0
