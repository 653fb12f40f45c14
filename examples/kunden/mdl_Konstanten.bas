Attribute VB_Name = "mdl_Konstanten"
Option Compare Database
Option Explicit

' Konstanten, Aufzählungen und Datentypen der Kundenverwaltung
' angelegt 03/2004, seither gewachsen

Public Const APP_NAME As String = "Kundenverwaltung Gartenbedarf"
Public Const APP_VERSION As String = "7.4.2"
Public Const DB_VERSION As Long = 42

Public Const MWST_VOLL As Double = 0.19
Public Const MWST_ERMÄSSIGT As Double = 0.07
Public Const MWST_ALT = 0.16        ' bis 31.12.2006, für alte Rechnungen
Public Const ZAHLUNGSZIEL_TAGE As Long = 14
Public Const MAHNGEBÜHR As Currency = 5
Public Const MAX_POSITIONEN As Long = 200
Public Const MAX_NACHLASS = 0.25
Public Const FORMAT_DATUM As String = "dd.mm.yyyy"
Public Const FORMAT_BETRAG As String = "#,##0.00"
Public Const TRENNZEICHEN As String = ";"
Public Const PFAD_VORLAGEN As String = "\Vorlagen\"
Public Const PFAD_ARCHIV As String = "\Archiv\"
Public Const FAX_VORWAHL As String = "0-"
Public Const DRUCKER_ETIKETTEN As String = "Etiketten"

Public Enum BestellStatus
    bsEntwurf = 0
    bsOffen = 1
    bsTeilgeliefert = 2
    bsGeliefert = 3
    bsBerechnet = 4
    bsStorniert = 9
End Enum

Public Enum MahnStufe
    msKeine = 0
    msErinnerung = 1
    msErsteMahnung = 2
    msZweiteMahnung = 3
    msInkasso = 4
End Enum

Public Enum ProtokollStufe
    psInfo = 1
    psWarnung = 2
    psFehler = 3
End Enum

Public Enum SteuerSatz
    ssVoll = 1
    ssErmäßigt = 2
    ssFrei = 3
    ssAlt = 4
End Enum

Public Enum KundenGruppe
    kgPrivat = 1
    kgGewerbe = 2
    kgWiederverkäufer = 3
End Enum

' Die Art der Lieferung steht seit Version 5 in der Tabelle tblLieferArten
Public Enum LieferArt
    laPost = 1
    laSpedition = 2
    laAbholung = 3
End Enum

Public Enum DruckZiel
    dzVorschau = 0
    dzDrucker = 1
    dzDatei = 2
End Enum

Public Type AdressDaten
    strAnrede As String
    strFirma As String
    strNachname As String
    strStraße As String
    strPlz As String
    strOrt As String
    strLand As String
End Type

Public Type RechnungsSummen
    curNetto As Currency
    curSteuerVoll As Currency
    curSteuerErmäßigt As Currency
    curBrutto As Currency
    lngPositionen As Long
End Type

Public Type ImportErgebnis
    lngGelesen As Long
    lngNeu As Long
    lngGeändert As Long
    lngFehlerhaft As Long
End Type

Public Type BankVerbindung
    strIban As String
    strBic As String
    strInhaber As String
End Type

' Versand als Fax, abgeschaltet 2019 (siehe Hinweis am Ende des Moduls)
Public Type FaxAuftrag
    strNummer As String
    strDatei As String
    datVersand As Date
End Type

Public gblnTestbetrieb As Boolean
Public glngBenutzerNr As Long
Public gstrBenutzer As String
Public gstrLetzterFilter As String

' Fällt mit Version 8 weg: FaxAuftrag, FAX_VORWAHL und die Aufzählung LieferArt
