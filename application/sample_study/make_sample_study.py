#!/usr/bin/env python3
"""Makes the sample study's data files.

    make_sample_study.py DIRECTORY

A town of 24 zones in 6 columns and 4 rows, four miles apart and moved about a little, with 4 districts. A
highway runs through the second row from end to end and is jammed where it passes the centre; the improvement
relieves it. Distances and times are shortest ways over one network of roads, so a detour is never shorter
than the direct way, and the improvement never lengthens a way.

All reckoning is in whole tenths of miles and minutes and in plain arithmetic from seeded random numbers, so
that every machine makes the same bytes.
"""

import math
import pathlib
import random
import sys

COLUMNS, ROWS = 6, 4
ZONES = COLUMNS * ROWS
SPACING = 4.0  # miles
HIGHWAY_ROW = 1
CENTRE = (2, 1)

# Miles per hour on a free road, and in the jam at the centre: before and after the improvement.
HIGHWAY, ARTERIAL, STREET = (60, 24, 40), (40, 25, 26), (30, 20, 20)

# Persons by occupation, and how strongly its workplaces draw to the centre (0: spread like the homes).
OCCUPATIONS = {
    "Executive_Adminstrative_Managerial": (14200, 0.8),
    "Professional_Specialty": (15900, 0.7),
    "Technicians_and_Related_Support": (4100, 0.5),
    "Sales": (13400, 0.6),
    "Administrative_Support": (18300, 0.8),
    "Private_Household": (500, 0.0),
    "Protective_Service": (2000, 0.4),
    "Service": (13200, 0.5),
    "Precision_production_craft_and_repair": (12900, 0.2),
    "Machine_operators_assemblers_inspectors": (7800, 0.1),
    "Transportation_and_material_moving": (4700, 0.2),
    "Handlers_equipment_cleaners_helpers": (4500, 0.2),
}

# Truck trips a day by industry.
INDUSTRIES = {"Agriculture": 900, "Mining": 350, "Manufacturing": 5200, "Service": 7400}

# Tons a year by class of commodities, in the order of their numbers.
COMMODITIES = {
    "farm products": 900_000,
    "ores, coal and stone": 1_400_000,
    "food": 600_000,
    "wood and paper": 500_000,
    "petroleum and chemicals": 700_000,
    "metals": 300_000,
    "machinery and vehicles": 250_000,
    "parcels and mixed goods": 200_000,
}
SENDERS = 4  # zones that a commodity comes from

# Speed in miles per hour and share of the miles on highways: base case, then improvement case.
RELIABILITY = "38 0.42 47 0.48"


def column_and_row(zone):
    return zone % COLUMNS, zone // COLUMNS


def places(chance):
    """A point in miles for each zone."""
    def moved(step):
        return step * SPACING + 1.6 * (chance.random() - 0.5)

    return [(moved(column), moved(row)) for column, row in map(column_and_row, range(ZONES))]


def steps_to_centre(zone):
    column, row = column_and_row(zone)
    return abs(column - CENTRE[0]) + abs(row - CENTRE[1])


def road_class(a, b):
    if column_and_row(a)[1] == column_and_row(b)[1] == HIGHWAY_ROW:
        return HIGHWAY
    return ARTERIAL if column_and_row(a)[0] in (CENTRE[0], CENTRE[0] + 1) else STREET


def speed(road, jam, improved):
    """Between the free speed and that of the jam; `jam` goes from 0 at the edge to 1 at the centre."""
    free, slow = road[0], road[2 if improved else 1]
    return free - (free - slow) * jam


def roads(points):
    """Tenths of miles, and of minutes before and after the improvement, of each road between neighbours."""
    result = {}
    for a in range(ZONES):
        column, row = column_and_row(a)
        for b, there in ((a + 1, column + 1 < COLUMNS), (a + COLUMNS, row + 1 < ROWS)):
            if not there:
                continue
            tenths = round(10 * 1.15 * math.sqrt(sum((p - q) ** 2 for p, q in zip(points[a], points[b]))))
            jam = max(0.0, 1 - (steps_to_centre(a) + steps_to_centre(b)) / 10)
            minutes = [
                max(1, round(60 * tenths / speed(road_class(a, b), jam, improved))) for improved in (False, True)
            ]
            result[a, b] = result[b, a] = (tenths, *minutes)
    return result


def shortest_ways(network, measure):
    """The least sum of a measure between all pairs. Within a zone it is half the way to the nearest zone."""
    far = 10**9
    ways = [[network[a, b][measure] if (a, b) in network else far for b in range(ZONES)] for a in range(ZONES)]
    for a in range(ZONES):
        ways[a][a] = (min(ways[a]) + 1) // 2
    for via in range(ZONES):
        for a in range(ZONES):
            for b in range(ZONES):
                ways[a][b] = min(ways[a][b], ways[a][via] + ways[via][b])
    return ways


def check_ways(distance, base, improvement):
    zones = range(ZONES)
    for ways in (distance, base, improvement):
        assert all(ways[a][b] <= ways[a][c] + ways[c][b] for a in zones for b in zones for c in zones)
        assert all(ways[a][b] > 0 for a in zones for b in zones)
    assert all(improvement[a][b] <= base[a][b] for a in zones for b in zones)
    assert any(improvement[a][b] < base[a][b] for a in zones for b in zones)


def apportion(total, weights):
    """Whole numbers in proportion to the weights that add up to the total."""
    exact = [total * weight / sum(weights) for weight in weights]
    parts = [int(part) for part in exact]
    by_remainder = sorted(range(len(exact)), key=lambda i: (parts[i] - exact[i], i))
    for i in by_remainder[: total - sum(parts)]:
        parts[i] += 1
    return parts


def people(chance, total, draw):
    homes = [(2 + min(steps_to_centre(zone), 4)) * (0.7 + 0.6 * chance.random()) for zone in range(ZONES)]
    jobs = [
        ((1 - draw) * homes[zone] + draw * 40 / (1 + steps_to_centre(zone)) ** 2) * (0.7 + 0.6 * chance.random())
        for zone in range(ZONES)
    ]
    return apportion(total, homes), apportion(total, jobs)


def trips(chance, total, distance):
    """Daily trucks by pair: more between busy zones, fewer the farther they lie apart."""
    busy = [(1 + 6 / (1 + steps_to_centre(zone))) * (0.5 + chance.random()) for zone in range(ZONES)]
    weights = [busy[a] * busy[b] / (30 + distance[a][b]) for a in range(ZONES) for b in range(ZONES)]
    return apportion(total, weights)


def shipments(chance, tons, distance):
    """Annual tons by pair: from a few places to everywhere, less the farther it lies."""
    order = [chance.random() for zone in range(ZONES)]
    senders = sorted(range(ZONES), key=lambda zone: order[zone])[:SENDERS]
    demand = [0.5 + chance.random() for zone in range(ZONES)]
    pairs = [(a, b) for a in sorted(senders) for b in range(ZONES)]
    parts = apportion(tons, [demand[b] / (30 + distance[a][b]) for a, b in pairs])
    return [(a, b, part) for (a, b), part in zip(pairs, parts)]


def commodity_lines(chance, distance):
    """By origin, and within it by class."""
    rows = [
        (origin, commodity, destination, tons)
        for commodity, total in enumerate(COMMODITIES.values(), start=1)
        for origin, destination, tons in shipments(chance, total, distance)
    ]
    return [f"{a + 1:>10}{b + 1:>10}{commodity:>10}{tons:>10}" for a, commodity, b, tons in sorted(rows)]


def tenths_text(tenths):
    whole, rest = divmod(tenths, 10)
    return f"{whole}.{rest}" if rest else f"{whole}"


def pair_lines(ways):
    return [f"{a + 1} {b + 1} {tenths_text(ways[a][b])}" for a in range(ZONES) for b in range(ZONES)]


def district(zone):
    """Four quarters of the town."""
    column, row = column_and_row(zone)
    return 1 + (column >= COLUMNS // 2) + 2 * (row >= ROWS // 2)


def study():
    """The lines of every file, by name."""
    chance = random.Random(24)
    network = roads(places(chance))
    distance, base, improvement = (shortest_ways(network, measure) for measure in range(3))
    check_ways(distance, base, improvement)
    files = {
        "distance.txt": pair_lines(distance),
        "base_time.txt": pair_lines(base),
        "imp_time.txt": pair_lines(improvement),
        "districts.txt": [f"{zone + 1} {district(zone)}" for zone in range(ZONES)],
        "reliability.txt": [RELIABILITY],
    }
    for name, (total, draw) in OCCUPATIONS.items():
        homes, jobs = people(chance, total, draw)
        files[f"commute_{name}.txt"] = [f"{z + 1:>10}{homes[z]:>10}{jobs[z]:>10}" for z in range(ZONES)]
    for name, total in INDUSTRIES.items():
        daily = trips(chance, total, distance)
        files[f"trips_{name}.txt"] = [
            f"{pair // ZONES + 1:>10}{pair % ZONES + 1:>10}{trucks:>10}" for pair, trucks in enumerate(daily)
        ]
    files["commodity.txt"] = commodity_lines(chance, distance)
    return files


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    directory = pathlib.Path(sys.argv[1])
    directory.mkdir(parents=True, exist_ok=True)
    for name, lines in study().items():
        (directory / name).write_bytes("".join(line + "\r\n" for line in lines).encode("ascii"))


if __name__ == "__main__":
    main()
