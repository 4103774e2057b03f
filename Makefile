# Short names for the scripts that do the work; docs/building.md tells what each does.

.PHONY: demo check validate dist package bench format tidy open

demo check validate dist package bench format tidy:
	scripts/$@

open:
	scripts/open $(FILE)
