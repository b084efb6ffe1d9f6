"""Read by Orca from its folder of preferences: what it would say becomes a line of the file PROUPSELLS_SPEECH."""
import os

import orca.settings
import orca.speech

_speech = open(os.environ["PROUPSELLS_SPEECH"], "w", encoding="utf-8", buffering=1)
orca.settings.speechServerFactory = ""
orca.settings.speechFactoryModules = []
orca.speech._speak = lambda text, acss, interrupt: print(text, file=_speech)
