# What the engineer does, and a part of what Orca then speaks.
step "Loads.|Default output.|Default: Default output." keys Down Down
step "List with 5 items" keys Return
step "Full output" keys Down Down Down
step "notification Loads. Full output. Changed. Default: Default output." keys Return
step "notification Loads. Default output. Default: Default output." keys ctrl+z
step "notification Loads. Full output. Changed. Default: Default output." keys ctrl+y
step "notification Loads. Default output. Default: Default output." keys Delete
step "notification Not changed: The clipboard does not hold settings." keys ctrl+v
step "OK" keys Tab
step "Output options tree" keys shift+Tab
step "List with 5 items" press "Sum of loads" 1
step "notification Sum of loads. Full output. Changed. Default: Default output." press "Full output" 0
step "notification Sum of loads. Default output. Default: Default output." press "Sum of loads" 2
