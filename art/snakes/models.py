"""All snake models, in the game's order.

A model has a folder name, a display name and three methods that draw on a canvas along a path:
body, head and tail.  Whatever reaches a border of the cell must be the same on both sides of it.
It may set contour (how dark its edge is) and curls (whether its start marker is a coil).
"""

import beasts
import made
import snakes

ALL = (
    beasts.Bee(),
    snakes.Boa(),
    made.Candy(),
    beasts.Caterpillar(),
    beasts.Clown(),
    snakes.Coral(),
    snakes.Dragon(),
    snakes.Frost(),
    snakes.Lava(),
    made.Robot(),
    made.Rope(),
    beasts.Skeleton(),
    beasts.Tiger(),
    made.Train(),
)
