// Stands in for the sources of a room that has none yet.
