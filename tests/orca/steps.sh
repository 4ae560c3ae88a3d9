# What the engineer presses, and a part of what Orca then speaks.
step "Output options"
step "Loads.|Default output.|Default: Default output." Down Down
step "List with 5 items" Return
step "Full output" Down Down Down
step "Loads.|Full output.|Reset to default.|Changed. Default: Default output." Return
step "Loads.|Default output.|Default: Default output." ctrl+z
step "Loads.|Full output.|Reset to default.|Changed. Default: Default output." ctrl+y
step "Loads.|Default output.|Default: Default output." Delete
step "Not changed: The clipboard does not hold settings." ctrl+v
