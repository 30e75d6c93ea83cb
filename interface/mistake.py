class Mistake(Exception):
    """Something in the table or in the headers that a person must put right."""
