"""The CAD host's scripting interface as far as the module uses it; pygcad.stand_in tells what stands behind it."""
