Option Explicit

Public Sub Pruefen()
    Dim varFeld As Variant
    For Each varFeld Of CurrentDb.TableDefs
        Debug.Print varFeld.Name
    Next varFeld
End Sub
