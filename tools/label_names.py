"""Today's names and better positions for make_label_files.py."""

COUNTRY_NAMES = {
    "Aland": "Åland",
    "Antigua and Barb.": "Antigua and Barbuda",
    "Bosnia and Herz.": "Bosnia and Herzegovina",
    "Br. Indian Ocean Ter.": "Chagos Is.",
    "Cape Verde": "Cabo Verde",
    "Congo": "Rep. Congo",
    "Czech Rep.": "Czechia",
    "Dem. Rep. Congo": "DR Congo",
    "Dem. Rep. Korea": "North Korea",
    "Dominican Rep.": "Dominican Republic",
    "Eq. Guinea": "Equatorial Guinea",
    "Faeroe Is.": "Faroe Is.",
    "Fr. Polynesia": "French Polynesia",
    "Fr. S. Antarctic Lands": "Kerguelen",
    "Heard I. and McDonald Is.": "Heard I.",
    "Jan Mayen I.": "Jan Mayen",
    "Korea": "South Korea",
    "Lao PDR": "Laos",
    "Macao": "Macau",
    "Macedonia": "North Macedonia",
    "S. Geo. and S. Sandw. Is.": "South Georgia",
    "S. Sudan": "South Sudan",
    "São Tomé and Principe": "São Tomé and Príncipe",
    "Saint Lucia": "St. Lucia",
    "Saint Helena": "St. Helena",
    "St-Barthélemy": "Saint-Barthélemy",
    "St-Martin": "Saint-Martin",
    "St. Vin. and Gren.": "St. Vincent",
    "Swaziland": "Eswatini",
    "Turkey": "Türkiye",
    "W. Sahara": "Western Sahara",
}

# Parts of places that have a label of their own, and places that are no entity of their own in amateur radio.
LEFT_OUT = {
    "Ashmore and Cartier Is.",
    "Gaza",
    "Indian Ocean Ter.",
    "N. Cyprus",
    "Siachen Glacier",
    "Somaliland",
    "West Bank",
    "København",  # the table of cities has it as Copenhagen too
}

# Far from the country that they belong to, and without an entry of their own in the table: ISO code, that country, and
# latitude and longitude of a place in the piece of land that bears the label.
DISTANT_PARTS = {
    "French Guiana": ("GF", "France", 4.0, -53.0),
    "Mayotte": ("YT", "France", -12.85, 45.15),
    "Réunion": ("RE", "France", -21.1, 55.5),
    "Svalbard": ("SJ", "Norway", 79.0, 16.5),
}

# Latitude and longitude where the largest piece of land is not where one looks for the name.
POSITIONS = {
    "Antarctica": (-80.0, 60.0),
    "Malaysia": (4.2, 102.2),
    "Norway": (61.2, 9.0),
    "Seychelles": (-4.68, 55.49),
    "Sweden": (63.5, 16.0),
    "United States": (39.5, -98.5),
}

# By ISO code, where the table of cities has another name than the table of capitals.
CAPITALS_IN_CITY_TABLE = {
    "AD": "Andorra",
    "CK": "Rarotonga",
    "GU": "Agana",
    "HK": "Hong Kong",
    "KI": "Tarawa",
    "MN": "Ulaanbaatar",
    "PW": "Melekeok",
    "SM": "San Marino",
    "TC": "Grand Turk",
}

# By ISO code, where the table of capitals has an old or an unusual name.
CAPITAL_NAMES = {
    "HK": "Hong Kong",
    "IS": "Reykjavík",
    "MN": "Ulaanbaatar",
    "PF": "Papeete",
    "SM": "San Marino",
    "US": "Washington",
}

CITY_NAMES = {
    "Ad Damman": "Dammam",
    "Belem": "Belém",
    "Chittagong": "Chattogram",
    "El Giza": "Giza",
    "Ft. Worth": "Fort Worth",
    "Goiania": "Goiânia",
    "Haora": "Howrah",
    "Hechi": "Guigang",
    "Izmir": "İzmir",
    "Jinxi": "Huludao",
    "Leon": "León",
    "Luan": "Lu'an",
    "Maceio": "Maceió",
    "Makkah": "Mecca",
    "Medellin": "Medellín",
    "Nasik": "Nashik",
    "Rangoon": "Yangon",
    "Rostov": "Rostov-on-Don",
    "Saidu": "Saidu Sharif",
    "Sao Paulo": "São Paulo",
    "Shenyeng": "Shenyang",
    "Shijianzhuang": "Shijiazhuang",
    "Sholapur": "Solapur",
    "Taian": "Tai'an",
    "Ujungpandang": "Makassar",
    "Vishakhapatnam": "Visakhapatnam",
    "Xian": "Xi'an",
}
