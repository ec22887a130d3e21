"""Settings behind combo boxes, and the options of single panels, clicked in the running program and read from the
document."""
from cockpit import Cockpit
from run_tests import thorough
from test_dials import DEMO
from test_menu import PANELS, Flight

SIZES = ((1280, 720), (720, 1280))
TURN, FIELD, LAMP, SLIP, GLIDER = range(5)
PLACES = {TURN: (0.0, 0.0, 0.4, 0.5), FIELD: (0.6, 0.0, 1.0, 0.4), LAMP: (0.0, 0.6, 0.4, 1.0), SLIP: (0.6, 0.6, 1.0, 1.0),
          GLIDER: (0.0, 0.0, 1.0, 1.0)}
FACTORIES = {TURN: 1, FIELD: 6, LAMP: 7, SLIP: 10, GLIDER: 14}


def pages(size):
    """The glider panel on a page of its own."""
    lines = [line for line in DEMO.split('[P0]')[0].split('\n') if not line.startswith('PanelCount')]
    config = 'PanelCount = 5\n' + '\n'.join(lines)
    for i, place in PLACES.items():
        config += ('\n[P%d]\nFactoryIndex = %d\nPage = %d\nPortrait = %d\nType = SPEED\nViewPortSX = %f\n'
                   'ViewPortSY = %f\nViewPortTX = %f\nViewPortTY = %f'
                   % ((i, FACTORIES[i], i == GLIDER, size[1] > size[0]) + place))
    return config


def tap_panel(flight, panel):
    """In the picture of the page, which has the shape of the screen and lacks the menu's bar at its foot."""
    left, top, right, bottom = flight.element_rect(PANELS, 'preview')
    scale = min((right - left) / flight.width, (bottom - top) / flight.height)
    x, y = (left + right) / 2 - flight.width * scale / 2, (top + bottom) / 2 - flight.height * scale / 2
    place = PLACES[panel]
    flight.click(x + (place[0] + place[2]) / 2 * flight.width * scale,
                 y + (place[1] + place[3]) / 2 * (flight.height - flight.button) * scale)


def edit(flight, panel, change):
    """The panel that was chosen before is let go by a tap beside it."""
    tap_panel(flight, panel)
    flight.press(PANELS, 'edit')
    change(flight)
    flight.cockpit.save(flight.cockpit.look(), 'options-%d-%dx%d' % ((panel,) + flight.cockpit.size))
    flight.click(*flight.editor_button('Ok'))


@thorough
def test_options_are_changed_by_combo_boxes_and_ticks(build):
    for size in SIZES:
        with Cockpit(build, pages(size), size) as cockpit:
            flight = Flight(cockpit)
            flight.open('General Setup')
            flight.choose(flight.editor_row(0), 0, 3)
            flight.choose(flight.editor_row(3), 0, 2)
            cockpit.save(cockpit.look(), 'options-general-%dx%d' % size)
            flight.click(*flight.editor_button('Ok'))
            flight.wait_for('terrainDetailLevel', 'LOW')
            settings = flight.document()['']
            assert settings['units'] == 'ft|nm|knots' and settings['font'] == 'Roboto', settings

            flight.open('Panel Setup')
            edit(flight, TURN, lambda glass: glass.click(*glass.editor_row(0)))
            edit(flight, FIELD, lambda glass: glass.choose(glass.editor_row(0), 1, 18))
            edit(flight, LAMP, lambda glass: glass.choose(glass.editor_row(0), 2, 4))
            edit(flight, SLIP, lambda glass: glass.click(*glass.editor_row(0)))
            flight.press(PANELS, 'nextPage')
            edit(flight, GLIDER, lambda glass: glass.choose(glass.editor_row(2), 1, 2))
            flight.press(PANELS, 'previousPage')
            tap_panel(flight, TURN)
            flight.press(PANELS, 'moveToTop')
            flight.press(PANELS, 'ok')
            cockpit.wait(lambda: flight.document()['P4']['FactoryIndex'] == '1', 5,
                         'the turn indicator on top')
            document = flight.document()
            assert document['P4']['DrawText'] == '0', document['P4']
            assert document['P0']['Type'] == 'BEARING', document['P0']
            assert document['P1']['Type'] == 'COURSE', document['P1']
            assert document['P2']['drawText'] == '0', document['P2']
            glider = document['P3']
            assert glider['units'] == 'km|m|m/s' and glider['averageTimeSpan'] == '60000', glider
            assert [glider['color2.' + channel] for channel in 'RGBA'] == ['255'] * 4, glider
            assert cockpit.close() == 0
