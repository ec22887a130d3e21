"""A pilot's own sums, on a sphere, with nothing of the program in them. Positions are (latitude, longitude) in degrees,
distances metres, courses degrees true."""
import math

RADIUS = 6371000.0


def unit(place):
    latitude, longitude = map(math.radians, place)
    return (math.cos(latitude) * math.cos(longitude), math.cos(latitude) * math.sin(longitude), math.sin(latitude))


def distance(a, b):
    return RADIUS * math.acos(max(-1.0, min(1.0, sum(p * q for p, q in zip(unit(a), unit(b))))))


def bearing(a, b):
    turn = math.radians(b[1] - a[1])
    latitude, other = math.radians(a[0]), math.radians(b[0])
    y = math.sin(turn) * math.cos(other)
    x = math.cos(latitude) * math.sin(other) - math.sin(latitude) * math.cos(other) * math.cos(turn)
    return math.degrees(math.atan2(y, x)) % 360


def offset(place, course, metres, right=0.0):
    """Ahead on a course, and to the right of it: on a plane, for a few miles."""
    angle = math.radians(course)
    north = metres * math.cos(angle) - right * math.sin(angle)
    east = metres * math.sin(angle) + right * math.cos(angle)
    return (place[0] + math.degrees(north / RADIUS),
            place[1] + math.degrees(east / RADIUS / math.cos(math.radians(place[0]))))


def along_and_right(origin, course, place):
    """Where a place lies, seen along a course from an origin."""
    metres, angle = distance(origin, place), math.radians(bearing(origin, place) - course)
    return metres * math.cos(angle), metres * math.sin(angle)


def apart(a, b):
    return abs((a - b + 180) % 360 - 180)
